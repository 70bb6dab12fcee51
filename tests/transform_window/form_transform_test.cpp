// Making the data with the calculator's program and transforming it: the
// whole path from a typed program to a saved and re-read result, a stop
// request, and the transform command on present data.
#include <QAbstractButton>
#include <QApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <cmath>

#include "form_fixture.h"

namespace lapdesk::testing {
namespace {

using TransformTest = FormTest;

const QString kFirstOrder = QStringLiteral("Return 1/(p+1)\nEnd");

std::vector<double> ResultValues(const TesmorForm& form) {
    const auto& values = form.driver().Store()[kResult].Values;
    return {values.begin(), values.begin() + form.driver().GetConditions().N};
}

TEST_F(TransformTest, TypedProgramToPlotTableFileAndBack) {
    TypeProgram(QStringLiteral("' F(p) = 1/(p+1)\nReturn 1/(p+1)\nEnd"));
    Click("Command2");
    ASSERT_EQ(Text("ResultLb"), QStringLiteral("OK"));
    EXPECT_EQ(Text("DataSourceLb"), QStringLiteral("Math"));
    EXPECT_EQ(Text("CosinTableLb"), QStringLiteral("256"));
    EXPECT_TRUE(messages.isEmpty()) << messages.join(QStringLiteral(" | ")).toStdString();
    const QStringList expectedOrder{
        QStringLiteral("データ作成中"), QStringLiteral("データ作成成功"),
        QStringLiteral("逆変換終了"),
        QStringLiteral("結果のテキストデータ作成中 もう一寸待ってね！！")};
    qsizetype at = 0;
    for (const QString& status : expectedOrder) {
        at = statuses.indexOf(status, at);
        EXPECT_GE(at, 0) << status.toStdString() << " in "
                         << statuses.join(QStringLiteral(" | ")).toStdString();
    }
    EXPECT_EQ(statuses.back(), QString());
    QApplication::processEvents();
    EXPECT_TRUE(form->isActiveWindow()) << "the transform window comes to the front";

    // f(t) = e^-t over the first 80 % of the record, away from the jump at 0.
    const std::vector<double> made = ResultValues(*form);
    for (int k = 8; k < 205; ++k) {
        EXPECT_NEAR(made[k], std::exp(-k * 5.0 / 256), 0.01) << "t = " << k * 5.0 / 256;
    }
    EXPECT_EQ(Scrn()->view(), PlotView::Result);
    EXPECT_EQ(Scrn()->DrawnPoints(), 256);
    EXPECT_TRUE(Find<QWidget>("Frame3")->isVisible());

    const QString path = PathOf("first-order.Ldt");
    script->files = {path};
    Click("ButtonResultWrite");
    EXPECT_EQ(statuses.back(), QStringLiteral("データ書込み成功"));
    EXPECT_EQ(script->dialogTitles.back(), QStringLiteral("データファイルを保存"));

    Click("ButtonClearScreen");
    EXPECT_EQ(Scrn()->DrawnPoints(), 0);

    script->files = {path};
    AnswerWisard(true);
    Click("ButtonDataRead");
    EXPECT_EQ(wisardShowings, 1);
    EXPECT_EQ(script->dialogTitles.back(), QStringLiteral("データファイルを開く"));
    EXPECT_TRUE(SawStatus(QStringLiteral("データ読込み成功")));
    EXPECT_EQ(Text("DataSourceLb"), QStringLiteral("File"));
    EXPECT_EQ(Text("ResultLb"), QStringLiteral("OK"));
    EXPECT_EQ(Scrn()->view(), PlotView::Result);
    EXPECT_EQ(Scrn()->DrawnPoints(), 256);
}

TEST_F(TransformTest, AStopRequestEndsTheDataCreationAndIsThenForgotten) {
    // The calculator's stop button is pressed as soon as the run lets events
    // run, which a run does only once it has lasted one pace of the screen:
    // each sample takes a while.
    const QString slow =
        QStringLiteral("s = 0\nFor i = 1 To 200\ns = s + 1\nNext\nReturn 1/(p+s)\nEnd");
    auto pressStop = [this] {
        QTest::mouseClick(Calculator().findChild<QPushButton*>(QStringLiteral("ButtonStop")),
                          Qt::LeftButton);
    };
    const QMetaObject::Connection stopper = QObject::connect(
        form.get(), &TesmorForm::statusChanged, form.get(), [this, pressStop](const QString& s) {
            if (s == QStringLiteral("データ作成中")) {
                QMetaObject::invokeMethod(&Calculator(), pressStop, Qt::QueuedConnection);
            }
        });
    RunProgram(slow);
    EXPECT_TRUE(Text("StatusBar").startsWith(QStringLiteral("プログラム実行中断：k = ")))
        << Text("StatusBar").toStdString();
    EXPECT_FALSE(SawStatus(QStringLiteral("データ作成成功")));
    EXPECT_EQ(Text("DataSourceLb"), QStringLiteral("Non"));
    EXPECT_EQ(Text("ResultLb"), QStringLiteral("Non"));
    EXPECT_TRUE(messages.isEmpty()) << "a stop is not an error";

    QObject::disconnect(stopper);
    Click("Command2");
    EXPECT_EQ(Text("ResultLb"), QStringLiteral("OK")) << "the old stop request is gone";
}

TEST_F(TransformTest, TheTransformCommandRepeatsTheSameResult) {
    RunProgram(kFirstOrder);
    const std::vector<double> first = ResultValues(*form);
    statuses.clear();
    Click("ButtonExeTesmor");
    EXPECT_EQ(ResultValues(*form), first);
    EXPECT_EQ(Text("CosinTableLb"), QStringLiteral("256"));
    EXPECT_EQ(statuses.front(), QStringLiteral("逆ラプラス変換中"));
    EXPECT_EQ(Scrn()->view(), PlotView::Result);
}

TEST_F(TransformTest, TheMenuAndTheCalculatorsOwnButtonMakeTheDataToo) {
    SetProgram(kFirstOrder);
    Action("MenueMathematRun")->trigger();
    EXPECT_EQ(Text("ResultLb"), QStringLiteral("OK"));
    EXPECT_TRUE(Calculator().isVisible());

    QTest::mouseClick(Find<QLabel>("TendLb"), Qt::LeftButton);
    Find<QLineEdit>("TendText")->setText(QStringLiteral("10"));
    QTest::keyClick(Find<QLineEdit>("TendText"), Qt::Key_Return);
    ASSERT_EQ(Text("ResultLb"), QStringLiteral("Non"));
    QTest::mouseClick(
        Calculator().findChild<QPushButton*>(QStringLiteral("ButtonExeProgToMakeTesmorData")),
        Qt::LeftButton);
    EXPECT_EQ(Text("ResultLb"), QStringLiteral("OK"));
    EXPECT_DOUBLE_EQ(Scrn()->xAxis->range().upper, 10.0);
    EXPECT_NEAR(form->driver().Store()[kResult].Values[64], std::exp(-64 * 10.0 / 256), 0.01);
}

// A run started here is stopped here: by the stop button beside the status
// line or by Esc, in the data loop or in the accuracy phase after it. The
// status says how; a stopped accuracy phase shows no points as failed. The
// data loop runs a program slow enough that the stop, which waits for the
// window's next look at its events, comes before the loop ends in any build.
TEST_F(TransformTest, ARunStartedHereIsStoppedHere) {
    const char* const kSlowFirstOrder = "For i = 1 To 3000\nNext\nReturn 1/(p+1)\nEnd";
    const struct {
        const char* name;
        const char* phase;  // the status at which the stop comes
        const char* program;
        bool byEscape;
        const char* status;
        const char* resultLb;
    } rows[] = {
        {"button in the data loop", "データ作成中", kSlowFirstOrder, false,
         "プログラム実行中断：中断ボタンで中断しました", "Non"},
        {"Esc in the data loop", "データ作成中", kSlowFirstOrder, true,
         "プログラム実行中断：Esc で中断しました", "Non"},
        {"button in the accuracy phase", "誤差帯と特異点を確認中", "Return 1/(p+1)\nEnd", false,
         "プログラム実行中断：中断ボタンで中断しました", "OK"},
    };
    for (const auto& row : rows) {
        const bool byEscape = row.byEscape;
        const QString phase = QString::fromUtf8(row.phase);
        bool stopEnabled = false;
        const QMetaObject::Connection stopper = QObject::connect(
            form.get(), &TesmorForm::statusChanged, form.get(), [&, this](const QString& s) {
                if (s != phase) return;
                stopEnabled = Find<QPushButton>("ButtonStopRun")->isEnabled();
                QMetaObject::invokeMethod(
                    form.get(),
                    [this, byEscape] {
                        if (byEscape) {
                            form->Escape_Pressed();
                        } else {
                            QTest::mouseClick(Find<QPushButton>("ButtonStopRun"), Qt::LeftButton);
                        }
                    },
                    Qt::QueuedConnection);
            });
        RunProgram(QString::fromUtf8(row.program));
        QObject::disconnect(stopper);
        EXPECT_TRUE(stopEnabled) << row.name;
        EXPECT_EQ(Text("StatusBar"), QString::fromUtf8(row.status)) << row.name;
        EXPECT_EQ(Text("ResultLb"), QString::fromUtf8(row.resultLb)) << row.name;
        EXPECT_FALSE(Find<QWidget>("SingularityBanner")->isVisible()) << row.name;
        EXPECT_TRUE(messages.isEmpty()) << row.name;
        EXPECT_FALSE(Find<QPushButton>("ButtonStopRun")->isEnabled()) << row.name;
    }
}

}  // namespace
}  // namespace lapdesk::testing
