// lapdesk-cli --plot: the result drawn into a PNG or SVG file.
#pragma once

#include <string>

namespace lapdesk {
class TransformDriver;
}

namespace lapdesk::cli {

// Draws f(t) with the transform window's plot code on Qt's offscreen
// platform, so no display is needed. Returns "" or why it failed.
std::string WritePlotImage(const TransformDriver& driver, const std::string& path);

}  // namespace lapdesk::cli
