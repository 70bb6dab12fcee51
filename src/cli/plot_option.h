// lapdesk-cli --plot: the result drawn into a PNG or SVG file. The drawing
// lives in a separate module (it needs Qt), loaded only for --plot.
#pragma once

#include <string>

namespace lapdesk {
class TransformDriver;
struct AccurateResult;
}  // namespace lapdesk

namespace lapdesk::cli {

// "" when --plot can work: this build has the plot module and it is where
// the tool looks for it. Otherwise the reason, for the option's check.
std::string PlotUnavailableReason();

// Draws f(t) with the transform window's plot code, and the accurate result
// over it when given. Returns "" or why it failed.
std::string WritePlotImage(const TransformDriver& driver, const std::string& path,
                           const AccurateResult* accurate = nullptr);

}  // namespace lapdesk::cli
