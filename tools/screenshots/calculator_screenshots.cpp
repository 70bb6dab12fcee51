// Saves PNG pictures of the calculator window in each of its views, driven
// by object name as a person would drive it: at start, calculator mode,
// program mode after a run, the execution list, the memory display with an
// array open, an error message waiting to be dismissed, the marked line, a
// result too long for its label, and the window at its least size.
// Usage: calculator_screenshots <folder>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <cstdio>

#include "calculator/frm_cpl_cal.h"

namespace {

using lapdesk::FrmCplCal;

void Save(QWidget& window, const QDir& folder, const QString& name) {
    QApplication::processEvents();
    const QString path = folder.filePath(name + QStringLiteral(".png"));
    if (!window.grab().save(path)) std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
}

void Type(FrmCplCal& window, const QString& line) {
    auto* box = window.findChild<QLineEdit*>(QStringLiteral("ImidateTextBox"));
    box->setText(line);
    QTest::keyClick(box, Qt::Key_Return);
}

void Trigger(FrmCplCal& window, const char* action) {
    window.findChild<QAction*>(QString::fromLatin1(action))->trigger();
}

void Click(FrmCplCal& window, const char* button) {
    QTest::mouseClick(window.findChild<QPushButton*>(QString::fromLatin1(button)), Qt::LeftButton);
}

void ShootCalculator(FrmCplCal& window, const QDir& folder) {
    Save(window, folder, QStringLiteral("0-start"));
    for (const char* line : {"a = 2+3j", "b = Sqrt(-4)", "a*b + 1/(1+1i)", "Abs(a)", "Exp(π*1j)"}) {
        Type(window, QString::fromUtf8(line));
    }
    Save(window, folder, QStringLiteral("1-calculator"));
}

void ShootPrograms(FrmCplCal& window, const QDir& folder) {
    Type(window, QStringLiteral("p = 1+2j"));
    Trigger(window, "MenueTesmorSample_5");
    Click(window, "ButtonPrgRun");
    Save(window, folder, QStringLiteral("2-program"));

    window.findChild<QCheckBox*>(QStringLiteral("CheckExeList"))->setChecked(true);
    Trigger(window, "MenueSample_4");
    Click(window, "ButtonPrgRun");
    Save(window, folder, QStringLiteral("3-execution-list"));
    Click(window, "ButtonPrgRun");
}

void ShootMemory(FrmCplCal& window, const QDir& folder) {
    Trigger(window, "MenueSample_5");
    Click(window, "ButtonPrgRun");
    Trigger(window, "MenueShowMemory");
    QApplication::processEvents();
    auto* pageList = window.findChild<QListWidget*>(QStringLiteral("MemoList_0"));
    for (int row = 0; row < pageList->count(); ++row) {
        if (!pageList->item(row)->text().startsWith(QStringLiteral("A("))) continue;
        pageList->setCurrentRow(row);
        const QRect rect = pageList->visualItemRect(pageList->item(row));
        QTest::mouseDClick(pageList->viewport(), Qt::LeftButton, {}, rect.center());
    }
    Save(window, folder, QStringLiteral("4-memory-array"));
    Click(window, "ButtonCloseArray");
    Click(window, "ButtonCloseMemory");
}

// The message itself is photographed while it waits (see main).
void ShootError(FrmCplCal& window, const QDir& folder) {
    window.findChild<QPlainTextEdit*>(QStringLiteral("ProgramText"))
        ->setPlainText(QStringLiteral("s = 0\nFor i = 1 To 10\n  s = s + i\nReturn s\nEnd\n"));
    window.findChild<QCheckBox*>(QStringLiteral("CheckExeList"))->setChecked(false);
    Click(window, "ButtonPrgRun");  // back from the execution list
    Click(window, "ButtonPrgRun");
    Save(window, folder, QStringLiteral("6-error-marked"));
}

// The least window in both modes and with the memory display, the keyboard
// shown, a long value.
void ShootSmall(FrmCplCal& window, const QDir& folder) {
    window.findChild<QRadioButton*>(QStringLiteral("OptionNomal"))->click();
    Click(window, "CommandKeyBoard");
    Type(window, QStringLiteral("-1.23456789012345E+300*(1+1j)/3"));
    window.resize(window.minimumSizeHint());
    Save(window, folder, QStringLiteral("7-smallest-calculator"));
    window.findChild<QRadioButton*>(QStringLiteral("OptionProgram"))->click();
    window.resize(window.minimumSizeHint());
    Save(window, folder, QStringLiteral("8-smallest-program"));
    Trigger(window, "MenueShowMemory");
    window.resize(window.minimumSizeHint());
    Save(window, folder, QStringLiteral("9-smallest-memory"));
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QDir folder(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("screenshots"));
    QDir().mkpath(folder.path());

    FrmCplCal window;
    // Every message is dismissed once it shows; the one of the error view is
    // photographed first, any other is reported.
    bool photographMessage = false;
    QObject::connect(
        &window, &FrmCplCal::messageShown, &window,
        [&](const QString& message) {
            if (photographMessage) {
                Save(window, folder, QStringLiteral("5-error-message"));
            } else {
                std::fprintf(stderr, "unexpected message: %s\n", qPrintable(message));
            }
            QTest::mouseDClick(window.findChild<QLabel*>(QStringLiteral("MessageBox")),
                               Qt::LeftButton);
        },
        Qt::QueuedConnection);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) return 1;
    ShootCalculator(window, folder);
    ShootPrograms(window, folder);
    ShootMemory(window, folder);
    photographMessage = true;
    ShootError(window, folder);
    photographMessage = false;
    ShootSmall(window, folder);
    std::printf("screenshots in %s\n", qPrintable(folder.absolutePath()));
    return 0;
}
