// What the window tells and where the focus goes: a failed run named and
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

struct FailedRun {
    const char* name;
    const char* program;
    const char* start;  // the first message starts with this
    const char* end;    // and ends with this
    int editorLine;     // 0-based line the editor marks
};

void PrintTo(const FailedRun& row, std::ostream* os) {
    *os << row.name;
}

class FailedRunTest : public WindowTest, public ::testing::WithParamInterface<FailedRun> {};

// The message waits with the program buttons and the file menu disabled;
// an edit removes the mark.
TEST_P(FailedRunTest, NamesAndMarksItsLine) {
    const FailedRun& row = GetParam();
    SetProgram(QString::fromUtf8(row.program));
    Click("ButtonPrgRun");
    ASSERT_GE(messages.size(), 1);
    EXPECT_TRUE(messages[0].startsWith(QString::fromUtf8(row.start))) << messages[0].toStdString();
    EXPECT_TRUE(messages[0].endsWith(QString::fromUtf8(row.end))) << messages[0].toStdString();
    EXPECT_FALSE(buttonsWhileWaiting);
    EXPECT_FALSE(fileMenuWhileWaiting);
    EXPECT_TRUE(Find<QWidget>("ProgramButtons")->isEnabled());
    EXPECT_FALSE(Find<QWidget>("MessageBase")->isVisible());
    auto* editor = Find<CodeEditor>("ProgramText");
    EXPECT_EQ(editor->errorLine(), row.editorLine);
    QTest::keyClick(editor, Qt::Key_Space);
    EXPECT_EQ(editor->errorLine(), -1);
}

// A function's own failure comes before Main's failing call.
INSTANTIATE_TEST_SUITE_P(
    Runs, FailedRunTest,
    ::testing::Values(
        FailedRun{"AnalysisError", "' 和\ns = 0\n\nFor i = 1 To 3\n  s = s + i\nReturn s\nEnd",
                  "Main: 2行目解析エラー\nFor i = 1 To 3:", "", 3},
        FailedRun{"RunErrorInAFunction",
                  "Return F(0)\nEnd\nFunction F(x)\n  y = 1 : z = w + 1\n  Return z\nEnd Function",
                  "F: 3行目実行エラー\nz = w + 1", "", 3},
        FailedRun{
            "ArgumentOfACall",
            "a = 1\n' 呼び出し\nb = 2 : c = F(q + w)\nEnd\nFunction F(x)\n  Return x\nEnd Function",
            "Main: 3行目：引数式 q + w 実行エラー\nc = F(q + w)", "", 2},
        FailedRun{"DivisionInMain", "' 割り算\na = 0\n\nb = 1 / a\nEnd", "実行時異常終了\n",
                  "\nMain: 2行目: b = 1 / a", 3},
        FailedRun{"OverflowInAFunction",
                  "Return F(1000)\nEnd\nFunction F(x)\n  y = 1\n  Return Exp(x)\nEnd Function",
                  "実行時異常終了\n", "\nF: 3行目: Return Exp(x)", 4}),
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
