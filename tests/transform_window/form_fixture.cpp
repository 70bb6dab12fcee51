#include "form_fixture.h"

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace lapdesk::testing {

void FormTest::SetUp() {
    script->recordTitles = true;
    form = std::make_unique<TesmorForm>(std::make_unique<ScriptedDialogs>(script),
                                        std::make_unique<ScriptedDialogs>(script));
    QObject::connect(form.get(), &TesmorForm::statusChanged, form.get(),
                     [this](const QString& text) { statuses << text; });
    FrmCplCal* calculator = &form->calculator();
    QObject::connect(
        calculator, &FrmCplCal::messageShown, calculator,
        [this, calculator](const QString& message) {
            messages << message;
            QTest::mouseDClick(calculator->findChild<QLabel*>(QStringLiteral("MessageBox")),
                               Qt::LeftButton);
        },
        Qt::QueuedConnection);
    ReadFileWisard* wisard = &form->wisard();
    QObject::connect(
        wisard, &ReadFileWisard::activated, wisard,
        [this, wisard] {
            ++wisardShowings;
            const std::function<void()> answer = std::move(wisardAnswer_);
            wisardAnswer_ = nullptr;
            if (answer) answer();
            if (wisard->isVisible()) {
                ADD_FAILURE() << "the wizard showed without an answer";
                wisard->ButtonCalcel_Click();
            }
        },
        Qt::QueuedConnection);
    form->show();
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    QObject::connect(&modalWatch_, &QTimer::timeout, [this] {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal == nullptr || modal == &form->wisard()) return;
        ADD_FAILURE() << "unexpected modal dialog: " << modal->windowTitle().toStdString();
        modal->close();
    });
    modalWatch_.start(50);
}

void FormTest::TearDown() {
    modalWatch_.stop();
    form.reset();
}

void FormTest::Click(const char* button) {
    // A person clicks only after the window has laid itself out.
    QApplication::processEvents();
    QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton);
}

void FormTest::TypeProgram(const QString& text) {
    Calculator().findChild<QRadioButton*>(QStringLiteral("OptionProgram"))->click();
    auto* editor = Calculator().findChild<QPlainTextEdit*>(QStringLiteral("ProgramText"));
    editor->clear();
    editor->setFocus();
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        QTest::keyClicks(editor, line);
        QTest::keyClick(editor, Qt::Key_Return);
    }
}

void FormTest::SetProgram(const QString& text) {
    Calculator().findChild<QRadioButton*>(QStringLiteral("OptionProgram"))->click();
    Calculator().findChild<QPlainTextEdit*>(QStringLiteral("ProgramText"))->setPlainText(text);
}

void FormTest::RunProgram(const QString& text) {
    SetProgram(text);
    Click("Command2");
    // The windows take their turns at the front.
    QApplication::processEvents();
}

void FormTest::AnswerWisard(bool ok) {
    wisardAnswer_ = [this, ok] {
        ReadFileWisard& wisard = form->wisard();
        if (!ok) {
            QTest::mouseClick(wisard.findChild<QPushButton*>(QStringLiteral("ButtonCalcel")),
                              Qt::LeftButton);
            return;
        }
        auto choose = [&wisard](const char* name, int number) {
            auto* list = wisard.findChild<QListWidget*>(QString::fromLatin1(name));
            QListWidgetItem* item = list->item(number - 1);
            list->scrollToItem(item);
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualItemRect(item).center());
        };
        choose("SpecialRow", 2);
        choose("TopRow", 4);
        choose("TopColumn", 1);
        auto* delimiters = wisard.findChild<QComboBox*>(QStringLiteral("DelimiterList"));
        const int index = delimiters->findText(QStringLiteral(","));
        delimiters->setCurrentIndex(index);
        emit delimiters->activated(index);
        QTest::mouseClick(wisard.findChild<QPushButton*>(QStringLiteral("ButtonOk")),
                          Qt::LeftButton);
    };
}

}  // namespace lapdesk::testing
