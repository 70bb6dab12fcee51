#include "window_fixture.h"

#include <QApplication>
#include <QMenu>

namespace lapdesk::testing {

void WindowTest::SetUp() {
    window = std::make_unique<FrmCplCal>(std::make_unique<ScriptedDialogs>(script));
    QObject::connect(
        window.get(), &FrmCplCal::messageShown, window.get(),
        [this](const QString& message) {
            messages << message;
            buttonsWhileWaiting = Find<QWidget>("ProgramButtons")->isEnabled();
            fileMenuWhileWaiting = Find<QMenu>("FileMenues")->isEnabled();
            QTest::mouseDClick(Find<QLabel>("MessageBox"), Qt::LeftButton);
        },
        Qt::QueuedConnection);
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QObject::connect(&modalWatch_, &QTimer::timeout, [] {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            ADD_FAILURE() << "unexpected modal dialog: " << modal->windowTitle().toStdString();
            modal->close();
        }
    });
    modalWatch_.start(50);
}

void WindowTest::TearDown() {
    modalWatch_.stop();
    window.reset();
}

void WindowTest::Click(const char* button) {
    // A person clicks only after the window has laid itself out.
    QApplication::processEvents();
    QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton);
}

void WindowTest::TypeLine(const QString& line) {
    QLineEdit* box = Immediate();
    box->setFocus();
    box->clear();
    QTest::keyClicks(box, line);
    QTest::keyClick(box, Qt::Key_Return);
}

void WindowTest::SetProgram(const QString& text) {
    QTest::mouseClick(Find<QWidget>("OptionProgram"), Qt::LeftButton);
    Editor()->setPlainText(text);
}

void WindowTest::DoubleClickRow(QListWidget* list, int row, Qt::KeyboardModifiers modifiers) {
    QApplication::processEvents();
    const QPoint at = list->visualItemRect(list->item(row)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, modifiers, at);
}

QStringList WindowTest::Rows(const QListWidget* list) const {
    QStringList rows;
    for (int k = 0; k < list->count(); ++k)
        rows << list->item(k)->text();
    return rows;
}

}  // namespace lapdesk::testing
