// What the window tells and where the focus goes: an abnormal end named and
// marked at its line, the running line numbered as the editor numbers it, a
// stopped run told apart from a failed one, the focus after Enter and in
// program mode, and a waiting message that keeps keys out of the program.
#include <QApplication>
#include <QStatusBar>

#include "calculator/code_editor.h"
#include "calculator/keyboard_layers.h"
#include "window_fixture.h"

namespace lapdesk::testing {
namespace {

using FeedbackTest = WindowTest;

struct AbnormalEnd {
    const char* name;
    const char* program;
    const char* location;  // the line the message adds
    int editorLine;        // 0-based line the editor marks
};

class AbnormalEndTest : public WindowTest, public ::testing::WithParamInterface<AbnormalEnd> {};

TEST_P(AbnormalEndTest, NamesAndMarksItsLine) {
    const AbnormalEnd& row = GetParam();
    SetProgram(QString::fromUtf8(row.program));
    Click("ButtonPrgRun");
    ASSERT_GE(messages.size(), 1);
    EXPECT_TRUE(messages[0].startsWith(QStringLiteral("実行時異常終了\n")))
        << messages[0].toStdString();
    EXPECT_TRUE(messages[0].endsWith(QStringLiteral("\n") + QString::fromUtf8(row.location)))
        << messages[0].toStdString();
    EXPECT_EQ(Find<CodeEditor>("ProgramText")->errorLine(), row.editorLine);
}

INSTANTIATE_TEST_SUITE_P(
    Runs, AbnormalEndTest,
    ::testing::Values(
        AbnormalEnd{"DivisionInMain", "' 割り算\na = 0\n\nb = 1 / a\nEnd", "Main: 2行目: b = 1 / a",
                    3},
        AbnormalEnd{"OverflowInAFunction",
                    "Return F(1000)\nEnd\nFunction F(x)\n  y = 1\n  Return Exp(x)\nEnd Function",
                    "F: 3行目: Return Exp(x)", 4}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(FeedbackTest, TheRunningLineIsNumberedAsTheEditorNumbersIt) {
    SetProgram(QStringLiteral("' note\n\na = 1\nEnd"));
    Click("ButtonPrgRun");
    EXPECT_EQ(Find<QLabel>("PGLb")->text(), QStringLiteral("Main"));
    EXPECT_EQ(Find<QLabel>("PCLb")->text(), QStringLiteral("4")) << "End is the fourth line";
}

TEST_F(FeedbackTest, AStoppedRunIsToldApartFromAFailedOne) {
    window->statusBar()->showMessage(QStringLiteral("読み込みました: x.Prg"));
    SetProgram(QStringLiteral("Return 1\nEnd"));
    Click("ButtonPrgRun");
    EXPECT_EQ(window->statusBar()->currentMessage(), QString()) << "a run clears old news";

    Editor()->setPlainText(QStringLiteral("Do\nLoop\nEnd"));
    QApplication::processEvents();
    QTimer::singleShot(0, window.get(), [this] { Click("ButtonStop"); });
    QTest::mouseClick(Find<QPushButton>("ButtonPrgRun"), Qt::LeftButton);
    EXPECT_EQ(window->statusBar()->currentMessage(), QStringLiteral("プログラム実行中断"));

    Editor()->setPlainText(QStringLiteral("a = 0\nReturn 1 / a\nEnd"));
    Click("ButtonPrgRun");
    EXPECT_EQ(window->statusBar()->currentMessage(),
              QStringLiteral("プログラムの実行が失敗しました"));
    TypeLine(QStringLiteral("1+1"));
    EXPECT_EQ(window->statusBar()->currentMessage(), QString()) << "the next line makes it old";
}

TEST_F(FeedbackTest, EnterKeepsTheFocusInTheLineWithTheMemoryDisplayOpen) {
    Click("ButtonShowMemory");
    Immediate()->setFocus();
    for (const QString& line : {QStringLiteral("a = 1"), QStringLiteral("b = 2")}) {
        QWidget* focused = QApplication::focusWidget();
        ASSERT_EQ(focused, Immediate());
        Immediate()->clear();
        QTest::keyClicks(focused, line);
        QTest::keyClick(focused, Qt::Key_Return);
    }
    EXPECT_EQ(Find<QListWidget>("HistryList")->count(), 2);
    EXPECT_EQ(Find<QLabel>("MemorysLbG")->text(), QStringLiteral("2"));
    Find<QListWidget>("HistryList")->setFocus();
    Click("ButtonEnter");
    EXPECT_EQ(QApplication::focusWidget(), Immediate()) << "the = button gives the focus back";
}

TEST_F(FeedbackTest, ProgramModeFocusesTheProgramText) {
    Immediate()->setFocus();
    QTest::mouseClick(Find<QWidget>("OptionProgram"), Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), Editor());
    Find<QWidget>("ButtonPrgRun")->setFocus();
    window->ShowProgramMode();
    EXPECT_EQ(QApplication::focusWidget(), Editor()) << "also when program mode was on";
}

TEST_F(FeedbackTest, AWaitingMessageKeepsStrayKeysOutOfTheProgram) {
    const QString program = QStringLiteral("a = 0\nReturn 1 / a\nEnd");
    SetProgram(program);
    QString focusedWhileWaiting;
    bool lineWhileWaiting = false;
    bool memoryWhileWaiting = false;
    QObject::connect(window.get(), &FrmCplCal::messageShown, window.get(), [&] {
        focusedWhileWaiting = QApplication::focusWidget()->objectName();
        lineWhileWaiting = Immediate()->isEnabled();
        memoryWhileWaiting = Find<QWidget>("FrmMemory")->isEnabled();
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("xyz"));
        QTest::keyClicks(Editor(), QStringLiteral("xyz"));
        // The on-screen keyboard and the word menus write into the active
        // box, which is the program here.
        window->Key_Click(0);
        window->InsertWord(QStringLiteral("Sin()"), 1);
        window->Ctlkey_Click(static_cast<int>(ControlKeyCaptions().indexOf(QStringLiteral("CLR"))));
    });
    Click("ButtonPrgRun");
    ASSERT_EQ(messages.size(), 1);
    EXPECT_EQ(focusedWhileWaiting, QStringLiteral("MessageBase"));
    EXPECT_TRUE(lineWhileWaiting) << "only the program buttons and the File menu wait";
    EXPECT_TRUE(memoryWhileWaiting);
    EXPECT_EQ(Editor()->toPlainText(), program);
    EXPECT_FALSE(Editor()->isReadOnly()) << "editable again once the message is gone";
    EXPECT_EQ(QApplication::focusWidget(), Editor());
}

}  // namespace
}  // namespace lapdesk::testing
