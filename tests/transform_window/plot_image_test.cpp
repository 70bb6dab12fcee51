// The plot box's drawing by itself: stopping half way, a drawing replaced
// while it runs, and the image files it writes without a window.
#include <gtest/gtest.h>

#include <QFile>
#include <QImage>

#include "first_order_driver.h"
#include "temp_folder.h"
#include "transform/window/plot/plot_image.h"
#include "transform/window/plot/scrn_plot.h"

namespace lapdesk {
namespace {

using testing_support::TempFolder;

TEST(ScrnPlot, DrawsEveryPointOfEveryCurve) {
    const TransformDriver driver = FirstOrder("256");
    ScrnPlot plot;
    EXPECT_TRUE(plot.Draw(DataContent(driver)));
    EXPECT_EQ(plot.view(), PlotView::Data);
    EXPECT_EQ(plot.DrawnPoints(), 512);
    EXPECT_TRUE(plot.Draw(ResultContent(driver)));
    EXPECT_EQ(plot.view(), PlotView::Result);
    EXPECT_EQ(plot.DrawnPoints(), 256) << "the data curves are gone";
    EXPECT_DOUBLE_EQ(plot.xAxis->range().upper, 5.0);
    plot.ClearScreen(8.0);
    EXPECT_EQ(plot.view(), PlotView::None);
    EXPECT_EQ(plot.DrawnPoints(), 0);
    EXPECT_DOUBLE_EQ(plot.xAxis->range().upper, 8.0) << "the empty box spans the record";
    EXPECT_DOUBLE_EQ(plot.yAxis->range().lower, -1.1);
    EXPECT_DOUBLE_EQ(plot.yAxis->range().upper, 1.1);
}

TEST(ScrnPlot, StopsWhenAskedBeforeAPoint) {
    const TransformDriver driver = FirstOrder("256");
    ScrnPlot plot;
    int asked = 0;
    ScrnPlot::DrawControl control;
    control.keepDrawing = [&asked] { return ++asked <= 10; };
    EXPECT_FALSE(plot.Draw(DataContent(driver), control));
    EXPECT_EQ(plot.DrawnPoints(), 20) << "ten indices, two curves";
}

TEST(ScrnPlot, ADrawingStartedMeanwhileReplacesTheRunningOne) {
    const TransformDriver driver = FirstOrder("1024");
    ScrnPlot plot;
    bool nested = false;
    ScrnPlot::DrawControl control;
    control.letEventsRun = [&] {
        if (nested) return;
        nested = true;
        plot.Draw(ResultContent(driver));
    };
    EXPECT_FALSE(plot.Draw(DataContent(driver), control));
    EXPECT_EQ(plot.view(), PlotView::Result);
    EXPECT_EQ(plot.DrawnPoints(), 1024) << "only the drawing that ran to the end";
}

// A PNG of the chosen size with f(t) in the result colour, and an SVG with
// its title.
TEST(PlotImage, WritesAPngAndAnSvg) {
    const TransformDriver driver = FirstOrder("128");
    TempFolder folder;
    const QString png = QString::fromStdString((folder / "f.png").string());
    ASSERT_EQ(SavePlotImage(driver, png, QSize(640, 400)), QString());
    QImage image(png);
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image.size(), QSize(640, 400));
    int curvePixels = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == PlotColours::Result()) ++curvePixels;
        }
    }
    EXPECT_GT(curvePixels, 300);

    const QString svg = QString::fromStdString((folder / "f.SVG").string());
    ASSERT_EQ(SavePlotImage(driver, svg), QString());
    QFile file(svg);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(text.contains(QStringLiteral("<svg")));
    EXPECT_TRUE(text.contains(QStringLiteral("N = 128")));
    EXPECT_TRUE(text.contains(QStringLiteral("結果")));
}

TEST(PlotImage, RefusesOtherSuffixesAndUnwritablePlaces) {
    const TransformDriver driver = FirstOrder("128");
    TempFolder folder;
    const QString text = QString::fromStdString((folder / "f.txt").string());
    EXPECT_TRUE(SavePlotImage(driver, text).contains(QStringLiteral(".png or .svg")));
    EXPECT_FALSE(QFile::exists(text));
    for (const char* name : {"missing/f.png", "missing/f.svg"}) {
        EXPECT_FALSE(
            SavePlotImage(driver, QString::fromStdString((folder / name).string())).isEmpty())
            << name;
    }
}

}  // namespace
}  // namespace lapdesk
