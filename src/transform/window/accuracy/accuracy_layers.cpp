#include "transform/window/accuracy/accuracy_layers.h"

#include <limits>

namespace lapdesk {

AccuracyLayers MakeAccuracyLayers(const TransformDriver& fft, const AccuracyReport& report) {
    AccuracyLayers layers;
    const Conditions c = fft.GetConditions();
    const std::vector<double>& y = fft.Store()[kResult].Values;
    layers.unreliableStart = {0.0, kUnreliableFirstSteps * c.DeltaT()};
    layers.unreliableEnd = {kReliableFraction * c.T, c.T};
    if (report.band && report.band->ok) {
        const std::vector<double>& band = report.band->band;
        for (int k = 0; k < c.N; ++k) {
            layers.bandOutline.x.push_back(c.TimeAt(k));
            layers.bandOutline.y.push_back(y[k] + band[k]);
        }
        for (int k = c.N - 1; k >= 0; --k) {
            layers.bandOutline.x.push_back(c.TimeAt(k));
            layers.bandOutline.y.push_back(y[k] - band[k]);
        }
    }
    if (report.accurate) {
        for (const AccuratePoint& p : report.accurate->points) {
            // The accurate curve breaks where it has no vouched-for value.
            const bool vouched = p.state == PointState::Converged;
            layers.accurate.x.push_back(p.t);
            layers.accurate.y.push_back(vouched ? p.value
                                                : std::numeric_limits<double>::quiet_NaN());
            if (vouched || p.state == PointState::NotApplicable) continue;
            layers.flagged.x.push_back(p.t);
            layers.flagged.y.push_back(p.value);
        }
    }
    return layers;
}

}  // namespace lapdesk
