// What the plot box shows, computed from the transform's sample store with no
// drawing: the samples (real and imaginary parts) against their index, or the
// result against t; the axis ranges the kept extreme values give; and the
// cursor readout.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "transform/transform_driver.h"

namespace lapdesk {

// What the plot shows, as NowDispLb names it ("", "Data", "Res").
enum class PlotView { None, Data, Result };

inline constexpr std::string_view kNowDispData = "Data";
inline constexpr std::string_view kNowDispResult = "Res";

struct AxisRange {
    double lower = 0.0;
    double upper = 0.0;
};

struct Curve {
    std::vector<double> x;
    std::vector<double> y;
};

struct PlotContent {
    PlotView view = PlotView::None;
    std::vector<Curve> curves;  // Data: real parts, imaginary parts; Result: f(t)
    AxisRange x;
    AxisRange y;
    double reliableUntil = 0.0;  // Result: t at 80 % of the record, where the scale stops
};

// The y range for series whose extreme values are given: it holds the
// extremes and zero, with a tenth of the span added on both sides, as the
// box's scale of 1.1 above and below a normalised curve does. A flat or
// non-finite series gives -1.1..1.1 around its value.
AxisRange RangeFromExtremes(double minValue, double maxValue);

// The samples of kinds 0 and 1 against k = 0..N-1, scaled by both series'
// extremes.
PlotContent DataContent(const TransformDriver& driver);

// The result (kind 2) against t_k = k*T/N, scaled by its extremes over the
// first 80 % of the record.
PlotContent ResultContent(const TransformDriver& driver);

// The empty box: t from 0 to T, y from -1.1 to 1.1.
PlotContent EmptyContent(double tEnd);

// The readout of the cursor's x: "t= 1.25" over the result; over the data,
// which are drawn against their index, the sample k nearest the cursor, as
// "k= 16".
std::string ReadoutXText(PlotView view, double x, int n);

// "t= 1.2346": the prefix and the value with 5 significant digits.
std::string ReadoutText(std::string_view prefix, double value);

}  // namespace lapdesk
