// The result of a transform operation: success, or the reason it failed.
#pragma once

#include <string>
#include <utility>

namespace lapdesk {

struct Outcome {
    bool ok = true;
    std::string reason;

    static Outcome Success() { return {}; }
    static Outcome Failure(std::string why) { return {false, std::move(why)}; }
};

}  // namespace lapdesk
