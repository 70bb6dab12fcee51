#include "transform/window/plot/plot_model.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace lapdesk {

namespace {

constexpr double kMargin = 0.1;  // of the span, above and below

}  // namespace

AxisRange RangeFromExtremes(double minValue, double maxValue) {
    if (!std::isfinite(minValue) || !std::isfinite(maxValue) || minValue > maxValue) {
        return {-1.0 - kMargin, 1.0 + kMargin};
    }
    const double lower = std::min(minValue, 0.0);
    const double upper = std::max(maxValue, 0.0);
    const double span = upper - lower;
    if (span == 0.0) return {-1.0 - kMargin, 1.0 + kMargin};
    return {lower - kMargin * span, upper + kMargin * span};
}

PlotContent DataContent(const TransformDriver& driver) {
    const int n = driver.GetConditions().N;
    const SampleStore& store = driver.Store();
    PlotContent content;
    content.view = PlotView::Data;
    for (const int kind : {kSampleRe, kSampleIm}) {
        Curve curve;
        for (int k = 0; k < n; ++k) {
            curve.x.push_back(k);
            curve.y.push_back(store[kind].Values[k]);
        }
        content.curves.push_back(std::move(curve));
    }
    content.x = {0.0, static_cast<double>(n)};
    content.y = RangeFromExtremes(std::min(store[kSampleRe].MinValue, store[kSampleIm].MinValue),
                                  std::max(store[kSampleRe].MaxValue, store[kSampleIm].MaxValue));
    return content;
}

PlotContent ResultContent(const TransformDriver& driver) {
    const Conditions c = driver.GetConditions();
    const SampleSeries& result = driver.Store()[kResult];
    PlotContent content;
    content.view = PlotView::Result;
    Curve curve;
    for (int k = 0; k < c.N; ++k) {
        curve.x.push_back(c.TimeAt(k));
        curve.y.push_back(result.Values[k]);
    }
    content.curves.push_back(std::move(curve));
    content.x = {0.0, c.T};
    content.y = RangeFromExtremes(result.MinValue, result.MaxValue);
    content.reliableUntil = kReliableFraction * c.T;
    return content;
}

PlotContent EmptyContent(double tEnd) {
    PlotContent content;
    content.x = {0.0, tEnd};
    content.y = RangeFromExtremes(0.0, 0.0);
    return content;
}

std::string ReadoutXText(PlotView view, double x, int n) {
    if (view != PlotView::Data || n <= 0 || !std::isfinite(x)) return ReadoutText("t= ", x);
    return "k= " + std::to_string(std::clamp(std::lround(x), 0L, static_cast<long>(n) - 1));
}

std::string ReadoutText(std::string_view prefix, double value) {
    char number[32];
    std::snprintf(number, sizeof number, "%.5g", value == 0.0 ? 0.0 : value);
    std::string text(prefix);
    text.append(number);
    return text;
}

}  // namespace lapdesk
