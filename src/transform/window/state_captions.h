// The captions of the transform window's parameter and state labels, made
// from the driver's numbers and states.
#pragma once

#include <string>
#include <string_view>

#include "transform/transform_driver.h"

namespace lapdesk {

std::string NCaption(const Conditions& conditions);       // "256"
std::string TCaption(const Conditions& conditions);       // "5", "0.25"
std::string Gamma0Caption(const Conditions& conditions);  // "5"
std::string CosTableCaption(const TransformDriver& driver);
std::string_view DataSourceCaption(DataSource source);  // "Non", "Math", "File"
std::string_view ResultCaption(bool hasResult);         // "OK" or "Non"

}  // namespace lapdesk
