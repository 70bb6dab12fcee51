#include "transform/accurate/line_values.h"

#include "transform/accurate/point_text.h"

namespace lapdesk {

LineValues LineValuesFromStore(const TransformDriver& driver) {
    const Conditions c = driver.GetConditions();
    const SampleStore& store = driver.Store();
    LineValues values(static_cast<std::size_t>(c.NPos) + 1);
    for (int k = 0; k <= c.NPos; ++k) {
        const double w = driver.HanningWeight(k) * (c.N / c.T);
        if (w == 0.0) continue;
        values[k] = Complex{store[kSampleRe].Values[k] / w, store[kSampleIm].Values[k] / w};
    }
    return values;
}

Outcome MakeFftRun(TransformDriver& driver, const LaplaceFunction& f, const LineValues& known,
                   std::int64_t& evaluations, bool& stopped) {
    driver.BeginDataCreation();
    for (int k = 0; k <= driver.GetConditions().NPos; ++k) {
        const Complex s = driver.SamplePoint(k);
        Complex value;
        if (k < static_cast<int>(known.size()) && known[k]) {
            value = *known[k];
        } else {
            ++evaluations;
            const FValue v = f(s);
            stopped = stopped || v.stopped;
            if (!v.ok) return Outcome::Failure("s = " + PointText(s) + " で " + v.reason);
            value = v.value;
        }
        if (!driver.StoreSample(k, value).ok)
            return Outcome::Failure("s = " + PointText(s) + " で値が大きすぎる");
    }
    return driver.FinishDataCreation();
}

}  // namespace lapdesk
