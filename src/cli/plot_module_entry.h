// The one function the plot module lapdesk-cli-plot.so exports, and where the
// command-line tool looks for it. The module is built from the same sources
// as the tool, so the two share the driver's layout.
#pragma once

#include <string>

namespace lapdesk {
class TransformDriver;
struct AccurateResult;
}  // namespace lapdesk

namespace lapdesk::cli {

inline constexpr const char* kPlotModuleFile = "lapdesk-cli-plot.so";
inline constexpr const char* kPlotModuleEntry = "LapdeskWritePlotImage";

// Draws f(t) of the driver, and the accurate result when given, into the
// PNG or SVG file at path; reason is left empty, or says why it failed.
using PlotModuleEntry = void (*)(const TransformDriver& driver, const AccurateResult* accurate,
                                 const std::string& path, std::string& reason);

}  // namespace lapdesk::cli
