// Nothing stale stays on screen or goes into a file: a failed inversion or
// data creation clears the old result away and says what failed and where,
// the state labels read "Non" as soon as a run starts, a save without a
// valid result is refused, and "データ表示" without data draws nothing.
#include <QApplication>
#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>
#include <QStatusBar>
#include <filesystem>

#include "form_fixture.h"

namespace lapdesk::testing {
namespace {

using StaleTest = FormTest;

const QString kFirstOrder = QStringLiteral("Return 1/(p+1)\nEnd");

void Enter(QLabel* label, QLineEdit* box, const char* value) {
    QTest::mouseClick(label, Qt::LeftButton);
    box->setText(QString::fromLatin1(value));
    QTest::keyClick(box, Qt::Key_Return);
}

TEST_F(StaleTest, AFailedInversionLeavesNoOldCurveAndNoFileBehind) {
    RunProgram(kFirstOrder);
    ASSERT_EQ(Scrn()->view(), PlotView::Result);
    Enter(Find<QLabel>("Ganmalb"), Find<QLineEdit>("GanmaText"), "800");
    EXPECT_EQ(Scrn()->view(), PlotView::None) << "a new gamma0 takes the old result away";
    EXPECT_FALSE(Find<QWidget>("Frame3")->isVisible());

    Click("Command2");
    QApplication::processEvents();
    EXPECT_EQ(Text("DataSourceLb"), QStringLiteral("Math"));
    EXPECT_EQ(Text("ResultLb"), QStringLiteral("Non"));
    EXPECT_EQ(Scrn()->view(), PlotView::None);
    EXPECT_EQ(Scrn()->DrawnPoints(), 0);
    EXPECT_EQ(Text("NowDispLb"), QString());
    const QString status = Text("StatusBar");
    EXPECT_TRUE(status.startsWith(QStringLiteral("逆変換失敗："))) << status.toStdString();
    EXPECT_TRUE(status.contains(QStringLiteral("k = 228 (t = 4.45312)"))) << status.toStdString();

    const qsizetype dialogsBefore = script->dialogTitles.size();
    Click("ButtonResultWrite");
    EXPECT_EQ(script->dialogTitles.size(), dialogsBefore) << "refused before a name is asked";
    EXPECT_TRUE(SawStatus(QStringLiteral("データ書きみ失敗")));
    EXPECT_TRUE(Text("StatusBar").startsWith(QStringLiteral("データ書きみ失敗：")));
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(StaleTest, TheStateLabelsReadNonAsSoonAsDataCreationStarts) {
    RunProgram(kFirstOrder);
    ASSERT_EQ(Text("ResultLb"), QStringLiteral("OK"));
    QStringList atStart;
    QObject::connect(form.get(), &TesmorForm::statusChanged, form.get(), [&](const QString& s) {
        if (s == QStringLiteral("データ作成中")) {
            atStart << Text("DataSourceLb") << Text("ResultLb") << Text("NowDispLb");
        }
    });
    Click("Command2");
    EXPECT_EQ(atStart, (QStringList{"Non", "Non", ""}));
    EXPECT_EQ(Text("ResultLb"), QStringLiteral("OK"));
    EXPECT_EQ(Text("NowDispLb"), QStringLiteral("Res"));
}

TEST_F(StaleTest, AFailingProgramLeavesNoDataAndNamesThePointTheFaultAndItsLine) {
    RunProgram(kFirstOrder);
    // Fails from k = 10 on.
    RunProgram(QStringLiteral(
        "If Image(p) > 10*2*π/5 - 0.1 Then\nReturn 1/0\nEnd If\nReturn 1/(p+1)\nEnd"));
    const QString status = Text("StatusBar");
    EXPECT_TRUE(status.startsWith(QStringLiteral("数値計算実行時エラー：k = 10 (p = 1+12.5664j)")))
        << status.toStdString();
    EXPECT_TRUE(status.contains(QStringLiteral("実行時異常終了"))) << status.toStdString();
    EXPECT_TRUE(status.contains(QStringLiteral("(Main: 2行目)"))) << status.toStdString();
    EXPECT_EQ(Scrn()->view(), PlotView::None) << "the old result is gone";
    EXPECT_FALSE(Find<QWidget>("Frame3")->isVisible());
    EXPECT_EQ(messages.size(), 1) << "the calculator shows the error";
    EXPECT_EQ(Text("DataSourceLb"), QStringLiteral("Non"));
    EXPECT_EQ(Text("ResultLb"), QStringLiteral("Non"));
    EXPECT_FALSE(Find<QPushButton>("ButtonExeTesmor")->isEnabled());
    EXPECT_TRUE(Find<QWidget>("ButtonsFrame")->isEnabled()) << "the commands are back";
    EXPECT_TRUE(Action("MenueMathematRun")->isEnabled());
    EXPECT_NE(form->driver().Store()[kSampleRe].Values[9], 0.0) << "what was made is kept";
}

TEST_F(StaleTest, DataDisplayWithoutDataDrawsNothing) {
    Click("ButtonDrawLapData");
    EXPECT_EQ(Scrn()->DrawnPoints(), 0);
    EXPECT_EQ(Text("NowDispLb"), QString());
    EXPECT_TRUE(Text("StatusBar").startsWith(QStringLiteral("表示するデータが有りません")));
}

TEST_F(StaleTest, TheCalculatorShowsTheVariablesOfTheDataRun) {
    Calculator().findChild<QPushButton*>(QStringLiteral("ButtonShowMemory"))->click();
    Calculator().statusBar()->showMessage(QStringLiteral("読み込みました: x.Prg"));
    RunProgram(QStringLiteral("q = p * 2\nReturn 1/(p+1)\nEnd"));
    EXPECT_EQ(Calculator().statusBar()->currentMessage(), QString());
    const auto* globals = Calculator().findChild<QListWidget*>(QStringLiteral("MemoList_1"));
    ASSERT_NE(globals, nullptr);
    QStringList names;
    for (int k = 0; k < globals->count(); ++k)
        names << globals->item(k)->text().section(QLatin1Char('='), 0, 0);
    EXPECT_TRUE(names.contains(QStringLiteral("p"))) << names.join(QLatin1Char(' ')).toStdString();
}

// The Hanning switch is a parameter like N, T and gamma0: the data were
// tapered, or not, when they were made.
TEST_F(StaleTest, TheHanningSwitchMakesTheDataStale) {
    RunProgram(kFirstOrder);
    ASSERT_EQ(Text("DataSourceLb"), QStringLiteral("Math"));
    Find<QCheckBox>("HaningCheck")->click();
    EXPECT_EQ(Text("DataSourceLb"), QStringLiteral("Non"));
    EXPECT_EQ(Text("ResultLb"), QStringLiteral("Non"));
    EXPECT_EQ(Scrn()->view(), PlotView::None);
    EXPECT_TRUE(Find<QLabel>("AccuracySummary")->text().isEmpty()) << "its findings went too";
}

// What speaks of a drawing or a run goes with it.
TEST_F(StaleTest, TheBannerAndTheExecutionListGoWithTheirCause) {
    RunProgram(QStringLiteral("Return 1/(p-2)\nEnd"));
    ASSERT_TRUE(Find<QWidget>("SingularityBanner")->isVisible());
    Click("ButtonClearScreen");
    EXPECT_FALSE(Find<QWidget>("SingularityBanner")->isVisible());
    auto* list = Calculator().findChild<QListWidget*>(QStringLiteral("ProgramList"));
    ASSERT_GT(list->count(), 0);
    SetProgram(kFirstOrder);
    EXPECT_EQ(list->count(), 0) << "the list of the old text";
}

}  // namespace
}  // namespace lapdesk::testing
