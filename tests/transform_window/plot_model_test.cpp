// What the plot shows, computed from the sample store without drawing.
#include "transform/window/plot/plot_model.h"
#include "first_order_driver.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace lapdesk {
namespace {

TEST(PlotModel, RangeHoldsTheExtremesAndZeroWithATenthMore) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    const struct {
        const char* name;
        double min, max, lower, upper;
    } rows[] = {
        {"decaying result", 0.0, 1.0, -0.1, 1.1},
        {"symmetric", -1.0, 1.0, -1.2, 1.2},
        {"positive only: zero stays in view", 2.0, 3.0, -0.3, 3.3},
        {"negative only", -4.0, -2.0, -4.4, 0.4},
        {"flat at zero: the empty box", 0.0, 0.0, -1.1, 1.1},
        {"not a number", nan, 1.0, -1.1, 1.1},
        {"overflowed", -1.0, inf, -1.1, 1.1},
        {"never computed", 1.0, -1.0, -1.1, 1.1},
    };
    for (const auto& row : rows) {
        const AxisRange range = RangeFromExtremes(row.min, row.max);
        EXPECT_NEAR(range.lower, row.lower, 1e-12) << row.name;
        EXPECT_NEAR(range.upper, row.upper, 1e-12) << row.name;
    }
}

TEST(PlotModel, DataAreBothPartsAgainstTheirIndex) {
    const TransformDriver driver = FirstOrder();
    const PlotContent content = DataContent(driver);
    EXPECT_EQ(content.view, PlotView::Data);
    ASSERT_EQ(content.curves.size(), 2u);
    const SampleStore& store = driver.Store();
    for (int kind : {kSampleRe, kSampleIm}) {
        const Curve& curve = content.curves[kind];
        ASSERT_EQ(curve.x.size(), 128u);
        EXPECT_EQ(curve.x[37], 37.0);
        EXPECT_EQ(curve.y[37], store[kind].Values[37]);
        EXPECT_EQ(curve.y[127], store[kind].Values[127]) << "the mirrored half is drawn too";
    }
    EXPECT_EQ(content.x.upper, 128.0);
    const double low = std::min(store[kSampleRe].MinValue, store[kSampleIm].MinValue);
    const double high = std::max(store[kSampleRe].MaxValue, store[kSampleIm].MaxValue);
    EXPECT_LT(content.y.lower, low);
    EXPECT_GT(content.y.upper, high);
    EXPECT_NEAR(content.y.upper - high, 0.1 * (high - std::min(low, 0.0)), 1e-9);
}

TEST(PlotModel, ResultIsAgainstTimeAndScaledByTheReliablePart) {
    const TransformDriver driver = FirstOrder();
    const PlotContent content = ResultContent(driver);
    EXPECT_EQ(content.view, PlotView::Result);
    ASSERT_EQ(content.curves.size(), 1u);
    const Curve& curve = content.curves.front();
    ASSERT_EQ(curve.x.size(), 128u);
    EXPECT_DOUBLE_EQ(curve.x[64], 2.5);
    EXPECT_EQ(curve.y[64], driver.Store()[kResult].Values[64]);
    EXPECT_EQ(content.x.lower, 0.0);
    EXPECT_EQ(content.x.upper, 5.0);
    EXPECT_DOUBLE_EQ(content.reliableUntil, 4.0);
    const SampleSeries& result = driver.Store()[kResult];
    const AxisRange expected = RangeFromExtremes(result.MinValue, result.MaxValue);
    EXPECT_EQ(content.y.lower, expected.lower);
    EXPECT_EQ(content.y.upper, expected.upper);
}

TEST(PlotModel, ReadoutOfDataNamesTheNearestSample) {
    const struct {
        PlotView view;
        double x;
        const char* text;
    } rows[] = {
        {PlotView::Data, 127.8, "k= 128"}, {PlotView::Data, -3.0, "k= 0"},
        {PlotView::Data, 400.0, "k= 255"}, {PlotView::Result, 2.5, "t= 2.5"},
        {PlotView::None, 1.25, "t= 1.25"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ReadoutXText(row.view, row.x, 256), row.text) << row.x;
    }
}

TEST(PlotModel, ReadoutTextHasFiveSignificantDigits) {
    const struct {
        const char* prefix;
        double value;
        const char* text;
    } rows[] = {
        {"t= ", 1.234567, "t= 1.2346"},
        {"y= ", -0.5, "y= -0.5"},
        {"y= ", -0.0, "y= 0"},
        {"y= ", 1.5e-7, "y= 1.5e-07"},
        {"t= ", 12345678.0, "t= 1.2346e+07"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ReadoutText(row.prefix, row.value), row.text);
    }
}

}  // namespace
}  // namespace lapdesk
