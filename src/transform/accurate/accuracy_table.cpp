#include "transform/accurate/accuracy_table.h"

#include "transform/accurate/point_text.h"

namespace lapdesk {

std::string AccuracyCsv(const TransformDriver& fft, const AccuracyReport& report) {
    const Conditions c = fft.GetConditions();
    const bool band = report.band && report.band->ok;
    std::string text = "t,fft,fft_error,accurate,accurate_error,accurate_ok\n";
    for (int k = 0; k < c.N; ++k) {
        text +=
            RoundTripText(c.TimeAt(k)) + "," + RoundTripText(fft.Store()[kResult].Values[k]) + ",";
        if (band) text += RoundTripText(report.band->band[k]);
        text += ",";
        const AccuratePoint* point = nullptr;
        if (report.accurate && k >= 1 && k <= static_cast<int>(report.accurate->points.size()))
            point = &report.accurate->points[k - 1];
        if (point != nullptr && point->state != PointState::NotApplicable)
            text += RoundTripText(point->value) + "," + RoundTripText(point->estimate) + "," +
                    (point->state == PointState::Converged ? "1" : "0");
        else
            text += ",,";
        text += "\n";
    }
    return text;
}

}  // namespace lapdesk
