#include "transform/accurate/accuracy_table.h"

#include "transform/accurate/point_text.h"

namespace lapdesk {

std::string AccuracyCsv(const TransformDriver& fft, const AccuracyReport& report) {
    const Conditions c = fft.GetConditions();
    const bool band = report.band && report.band->ok;
    std::string text = "t,fft,fft_error,accurate,accurate_error,accurate_ok\n";
    const auto accurateColumns = [](const AccuratePoint* point) -> std::string {
        if (point == nullptr || point->state == PointState::NotApplicable) return ",,";
        return RoundTripText(point->value) + "," + RoundTripText(point->estimate) + "," +
               (point->state == PointState::Converged ? "1" : "0");
    };
    // The accurate points share the FFT's rows when made on its grid;
    // others (a range of t of the user's) follow in rows of their own.
    const std::vector<AccuratePoint>* points = report.accurate ? &report.accurate->points : nullptr;
    bool onGrid = points != nullptr && static_cast<int>(points->size()) == c.N - 1;
    for (int k = 1; onGrid && k < c.N; ++k)
        onGrid = (*points)[k - 1].t == c.TimeAt(k);
    for (int k = 0; k < c.N; ++k) {
        text +=
            RoundTripText(c.TimeAt(k)) + "," + RoundTripText(fft.Store()[kResult].Values[k]) + ",";
        if (band) text += RoundTripText(report.band->band[k]);
        text += "," + accurateColumns(onGrid && k >= 1 ? &(*points)[k - 1] : nullptr) + "\n";
    }
    if (points != nullptr && !onGrid) {
        for (const AccuratePoint& point : *points)
            text += RoundTripText(point.t) + ",,," + accurateColumns(&point) + "\n";
    }
    return text;
}

}  // namespace lapdesk
