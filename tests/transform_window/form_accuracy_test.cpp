// The accuracy features in the transform window: the warning banner, the
// accurate curve and the band over the result, the readout, the CSV export,
// and the result text that stays as the FFT made it.
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>

#include "form_fixture.h"

namespace lapdesk::testing {
namespace {

const QString kFirstOrder = QStringLiteral("Return 1/(p+1)\nEnd");
const QString kPoleRight = QStringLiteral("Return 1/(p-2)\nEnd");

class AccuracyTest : public FormTest {
  protected:
    void ChooseAccurate(bool on) { Find<QComboBox>("MethodCombo")->setCurrentIndex(on ? 1 : 0); }
    QLabel* Banner() { return Find<QLabel>("SingularityBanner"); }
    QString ResultText() { return Find<QPlainTextEdit>("Text1")->toPlainText(); }
};

TEST_F(AccuracyTest, APoleRightOfTheLineRaisesTheBannerUntilTheNextRun) {
    RunProgram(kPoleRight);
    ASSERT_EQ(Text("ResultLb"), QStringLiteral("OK"));
    EXPECT_TRUE(Banner()->isVisible());
    EXPECT_TRUE(Banner()->text().contains(QStringLiteral("特異点")))
        << Banner()->text().toStdString();
    EXPECT_TRUE(Banner()->text().contains(QStringLiteral("γ0 を大きくしてください")));
    EXPECT_EQ(statuses.back(), QString());
    EXPECT_TRUE(messages.isEmpty()) << "a warning, not a message box";

    RunProgram(kFirstOrder);
    EXPECT_FALSE(Banner()->isVisible());
}

TEST_F(AccuracyTest, TheAccurateModeDrawsASecondCurveAndKeepsTheFftText) {
    RunProgram(kFirstOrder);
    const QString fftText = ResultText();
    EXPECT_EQ(Scrn()->plottableCount(), 2) << "the result and its band";

    ChooseAccurate(true);
    RunProgram(kFirstOrder);
    EXPECT_EQ(ResultText(), fftText);
    EXPECT_EQ(Scrn()->DrawnPoints(), 256) << "the FFT's own curve";
    ASSERT_EQ(Scrn()->plottableCount(), 3);
    auto* accurate = qobject_cast<QCPCurve*>(Scrn()->plottable(2));
    ASSERT_NE(accurate, nullptr);
    EXPECT_EQ(accurate->dataCount(), 255);  // t = n*T/N, n = 1..N-1
    EXPECT_EQ(accurate->name(), QStringLiteral("高精度"));

    // The readout at t = 1 shows the accurate value e^-1 and the estimates.
    const double x = Scrn()->xAxis->coordToPixel(1.0);
    const QPointF at(x, Scrn()->height() / 2.0);
    QMouseEvent move(QEvent::MouseMove, at, Scrn()->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(Scrn(), &move);
    const QString readout = Text("AccuracyReadout");
    EXPECT_TRUE(readout.contains(QStringLiteral("誤差帯 ±"))) << readout.toStdString();
    EXPECT_TRUE(readout.contains(QStringLiteral("高精度 y= 0.3"))) << readout.toStdString();

    // Drawing the samples leaves the layers out; the result brings them back.
    Click("ButtonDrawLapData");
    EXPECT_EQ(Scrn()->plottableCount(), 2);
    Click("ButtonDrawResult");
    EXPECT_EQ(Scrn()->plottableCount(), 3);
}

TEST_F(AccuracyTest, TheCsvExportHoldsBothMethods) {
    ChooseAccurate(true);
    RunProgram(kFirstOrder);
    const QString path = PathOf("accuracy.csv");
    script->files = {path};
    Action("MenueAccuracyCsv")->trigger();
    EXPECT_EQ(statuses.back(), QStringLiteral("精度データ書込み成功"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    EXPECT_EQ(lines.front(), QStringLiteral("t,fft,fft_error,accurate,accurate_error,accurate_ok"));
    ASSERT_GE(lines.size(), 257);
    EXPECT_TRUE(lines[1].startsWith(QStringLiteral("0,"))) << "t = 0 has no accurate value";
    EXPECT_TRUE(lines[1].endsWith(QStringLiteral(",,,"))) << lines[1].toStdString();
    EXPECT_EQ(lines[2].count(QLatin1Char(',')), 5);
    EXPECT_TRUE(lines[2].endsWith(QStringLiteral(",1"))) << "vouched for";
    EXPECT_FALSE(lines[2].contains(QStringLiteral(",,"))) << lines[2].toStdString();
}

TEST_F(AccuracyTest, FileDataShowNoLayers) {
    RunProgram(kFirstOrder);
    const QString path = PathOf("first-order.Ldt");
    script->files = {path, path};
    Click("ButtonResultWrite");
    AnswerWisard(true);
    Click("ButtonDataRead");
    ASSERT_EQ(Text("DataSourceLb"), QStringLiteral("File"));
    EXPECT_EQ(Scrn()->plottableCount(), 1);
    EXPECT_FALSE(Banner()->isVisible());
}

// A tolerance chooses N and gamma0 after the run at the values set: the
// labels show the choice, the summary begins with what it reached, and the
// ends of f follow.
TEST_F(AccuracyTest, ATolerancePicksNAndGamma0AndSaysWhatItReached) {
    Find<QComboBox>("ToleranceCombo")->setCurrentText(QStringLiteral("1e-4"));
    RunProgram(QStringLiteral("Return 1/(p+1)^2\nEnd"));
    ASSERT_EQ(Text("ResultLb"), QStringLiteral("OK"));
    const QString summary = Text("AccuracySummary");
    EXPECT_TRUE(summary.startsWith(QStringLiteral("目標精度 0.0001: N = ") + Text("WordNumberLb")))
        << summary.toStdString();
    EXPECT_NE(Text("WordNumberLb"), QStringLiteral("256")) << "more points were needed";
    EXPECT_TRUE(summary.contains(QStringLiteral("f(0+) = 0 (±"))) << summary.toStdString();
    EXPECT_TRUE(summary.contains(QStringLiteral("f(∞) = 0 (±"))) << summary.toStdString();
}

// Six decades of t on a log axis: the accurate method is asked at 20 times
// a decade, the axis is logarithmic until the plot is cleared, and the CSV
// export gives those times rows of their own.
TEST_F(AccuracyTest, ALogTimeAxisShowsTheAccurateResultOverDecades) {
    ChooseAccurate(true);
    Find<QComboBox>("TimeAxisCombo")->setCurrentIndex(1);
    Find<QLineEdit>("TimeRangeEdit")->setText(QStringLiteral("1e-3:1e3"));
    RunProgram(kFirstOrder);
    ASSERT_EQ(Text("ResultLb"), QStringLiteral("OK"));
    EXPECT_EQ(Scrn()->xAxis->scaleType(), QCPAxis::stLogarithmic);
    EXPECT_DOUBLE_EQ(Scrn()->xAxis->range().lower, 1e-3);
    EXPECT_DOUBLE_EQ(Scrn()->xAxis->range().upper, 1e3);
    const QString csvPath = PathOf("log.csv");
    script->files = {csvPath};
    Action("MenueAccuracyCsv")->trigger();
    QFile csv(csvPath);
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
    const QStringList rows = QString::fromUtf8(csv.readAll()).split('\n', Qt::SkipEmptyParts);
    EXPECT_EQ(rows.size(), 1 + 256 + 121) << "the header, the FFT's rows, the accurate times";
    EXPECT_TRUE(rows.last().startsWith(QStringLiteral("1000,,,"))) << rows.last().toStdString();
    Click("ButtonClearScreen");
    EXPECT_EQ(Scrn()->xAxis->scaleType(), QCPAxis::stLinear);
}

}  // namespace
}  // namespace lapdesk::testing
