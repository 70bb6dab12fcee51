#include "transform/sample_store.h"

#include <algorithm>

namespace lapdesk {

void SampleStore::GetMaxValue(int kind, int count) {
    SampleSeries& series = Kinds.at(kind);
    const int n = std::clamp(count, 0, kSeriesLength);
    if (n == 0) {
        series.MaxValue = series.MinValue = 0.0;
        return;
    }
    const auto [low, high] = std::minmax_element(series.Values.begin(), series.Values.begin() + n);
    series.MinValue = *low;
    series.MaxValue = *high;
}

}  // namespace lapdesk
