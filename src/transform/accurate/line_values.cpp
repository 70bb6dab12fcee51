#include "transform/accurate/line_values.h"

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

}  // namespace lapdesk
