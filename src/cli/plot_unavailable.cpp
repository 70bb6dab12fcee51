// The core build has no Qt, so it has no plot module and no --plot.
#include "plot_option.h"

namespace lapdesk::cli {

std::string PlotUnavailableReason() {
    return "このビルド（Qt なしの core ビルド）では --plot は使えません";
}

std::string WritePlotImage(const TransformDriver&, const std::string&, const AccurateResult*) {
    return PlotUnavailableReason();
}

}  // namespace lapdesk::cli
