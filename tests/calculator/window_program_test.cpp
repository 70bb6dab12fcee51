// Modes, program runs in both display modes, stopping, and analysis.
#include <QApplication>
#include <QCheckBox>
#include <QMenu>

#include "calculator/progress_meter.h"
#include "window_fixture.h"

namespace lapdesk::testing {
namespace {

using ProgramTest = WindowTest;

const QString kSum = QStringLiteral(
    "' 1 から 10 までの和\n"
    "s = 0\n"
    "For i = 1 To 10\n"
    "  s = s + i\n"
    "Next\n"
    "Return s\n"
    "End\n");

TEST_F(ProgramTest, ModesShowTheirControls) {
    for (const bool program : {true, false}) {
        QTest::mouseClick(Find<QWidget>(program ? "OptionProgram" : "OptionNomal"), Qt::LeftButton);
        EXPECT_EQ(Find<QWidget>("ProgramFrame")->isVisible(), program);
        EXPECT_EQ(Find<QWidget>("HistryList")->isVisible(), !program);
        EXPECT_FALSE(Find<QWidget>("FrameKeyBoard")->isVisible()) << "shown again only on request";
        for (const char* name :
             {"MenueExe", "MenueExeList", "MenueReadProgram", "MenueWriteProgram"}) {
            EXPECT_EQ(Action(name)->isEnabled(), program) << name;
        }
    }
    Click("CommandKeyBoard");
    EXPECT_TRUE(Find<QWidget>("FrameKeyBoard")->isVisible());
}

TEST_F(ProgramTest, RunShowingTheExecutionList) {
    SetProgram(kSum);
    Find<QCheckBox>("CheckExeList")->setChecked(true);
    Click("ButtonPrgRun");
    EXPECT_EQ(Kai(), QStringLiteral("Result=55"));
    auto* list = Find<QListWidget>("ProgramList");
    EXPECT_TRUE(list->isVisible());
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_EQ(Rows(list),
              (QStringList{"s = 0", "For i = 1 To 10", "s = s + i", "Next", "Return s", "End"}));
    EXPECT_EQ(list->currentRow(), 4) << "the list follows the running line to Return";
    EXPECT_EQ(Find<QPushButton>("ButtonPrgRun")->text(), QStringLiteral("プログラム"));
    EXPECT_EQ(Action("MenueExeList")->text(), QStringLiteral("プログラム表示"));

    // The first press only goes back to the text; the second runs again.
    Find<QLabel>("kai")->clear();
    Click("ButtonPrgRun");
    EXPECT_TRUE(Editor()->isVisible());
    EXPECT_EQ(Kai(), QString());
    EXPECT_EQ(Find<QPushButton>("ButtonPrgRun")->text(), QStringLiteral("実　行"));
    Click("ButtonPrgRun");
    EXPECT_EQ(Kai(), QStringLiteral("Result=55"));

    // The menu switches the same way; leaving program mode also leaves the list.
    Action("MenueExeList")->trigger();
    EXPECT_EQ(Find<QPushButton>("ButtonPrgRun")->text(), QStringLiteral("実　行"));
    Action("MenueExeList")->trigger();
    QTest::mouseClick(Find<QWidget>("OptionNomal"), Qt::LeftButton);
    EXPECT_EQ(Action("MenueExeList")->text(), QStringLiteral("実行リスト表示"));
}

TEST_F(ProgramTest, CtrlEnterRuns) {
    SetProgram(QStringLiteral("Return 6*7\nEnd"));
    Editor()->setFocus();
    QTest::keyClick(Editor(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Kai(), QStringLiteral("Result=42"));
}

TEST_F(ProgramTest, StopEndsARunawayLoop) {
    SetProgram(QStringLiteral("n = 0\nDo\n  n = n + 1\nLoop\nEnd"));
    for (const bool byEsc : {false, true}) {
        // The stop arrives while the loop runs: the run lets events through,
        // with the run button disabled and the stop button enabled.
        bool runEnabled = true;
        bool stopEnabled = false;
        QApplication::processEvents();
        QTimer::singleShot(0, window.get(), [&, byEsc] {
            runEnabled = Find<QPushButton>("ButtonPrgRun")->isEnabled();
            stopEnabled = Find<QPushButton>("ButtonStop")->isEnabled();
            if (byEsc) {
                QTest::keyClick(window.get(), Qt::Key_Escape);
            } else {
                Click("ButtonStop");
            }
        });
        QTest::mouseClick(Find<QPushButton>("ButtonPrgRun"), Qt::LeftButton);
        EXPECT_FALSE(runEnabled);
        EXPECT_TRUE(stopEnabled);
        EXPECT_EQ(Kai(), QStringLiteral("End of Analize Page Number=1")) << "by Esc: " << byEsc;
        EXPECT_TRUE(messages.isEmpty()) << "a stop is not an error";
        EXPECT_TRUE(Find<QPushButton>("ButtonPrgRun")->isEnabled());
        EXPECT_TRUE(window->StopRequested()) << "reset only when the next run starts";
    }
    Editor()->setPlainText(QStringLiteral("Return 1\nEnd"));
    Click("ButtonPrgRun");
    EXPECT_EQ(Kai(), QStringLiteral("Result=1")) << "the next run starts afresh";
}

TEST_F(ProgramTest, AnEditForcesAFreshAnalysis) {
    SetProgram(kSum);
    Click("ButtonPrgRun");
    EXPECT_TRUE(window->interpreter().ProgramAnalysed());
    QTest::keyClick(Editor(), Qt::Key_Space);
    EXPECT_FALSE(window->interpreter().ProgramAnalysed());
    Editor()->undo();
    EXPECT_EQ(Editor()->toPlainText(), kSum) << "edits can be undone";
}

// Globals are erased before an analysis: MenueExe always asks for it, the
// run button only when MenueClearGlVar is checked.
TEST_F(ProgramTest, MenueExeErasesGlobalsButTheRunButtonDoesNot) {
    TypeLine(QStringLiteral("q = 7"));
    SetProgram(QStringLiteral("Return q\nEnd"));
    Action("MenueExe")->trigger();
    EXPECT_EQ(Kai(), QStringLiteral("End of Analize Page Number=1"));
    EXPECT_EQ(messages.size(), 1) << "q is gone";
    EXPECT_EQ(window->interpreter().ImmediatePage().NumofMemory(), 0);

    TypeLine(QStringLiteral("q = 7"));
    Editor()->setPlainText(QStringLiteral("Return q \nEnd"));
    Click("ButtonPrgRun");
    EXPECT_EQ(Kai(), QStringLiteral("Result=7"));
}

TEST_F(ProgramTest, MeterResetsToTicksAndGrows) {
    window->CalProcMeter(100, true);
    auto* meter = Find<ProgressMeter>("Meter");
    EXPECT_FALSE(Find<QWidget>("PrgRningBox")->isHidden());
    EXPECT_EQ(meter->scale(), 100);
    EXPECT_EQ(meter->ticks().size(), 21u);
    const struct {
        double value;
        double bar;
    } steps[] = {{0, 0}, {-1, 0}, {40, 40}, {20, 40}, {100, 100}};
    for (const auto& step : steps) {
        window->CalProcMeter(step.value, false);
        EXPECT_EQ(meter->bar(), step.bar) << step.value;
    }
    window->CalProcMeter(50, true);
    EXPECT_EQ(meter->bar(), 0) << "a reset clears the bar";
}

}  // namespace
}  // namespace lapdesk::testing
