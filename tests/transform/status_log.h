// Collects the status texts a driver reports, in order.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "transform/transform_driver.h"

namespace lapdesk::testing_support {

struct StatusLog {
    std::vector<std::string> texts;

    explicit StatusLog(TransformDriver& driver) {
        driver.SetStatusSink([this](std::string_view text) { texts.emplace_back(text); });
    }
};

}  // namespace lapdesk::testing_support
