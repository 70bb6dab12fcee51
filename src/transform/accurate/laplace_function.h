// F(s) as the accurate inversion, the error band and the singularity check
// see it: one complex point in, its value or the reason there is none out.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "values/complex.h"

namespace lapdesk {

struct FValue {
    bool ok = true;
    Complex value;
    std::string reason;    // why there is no value
    bool stopped = false;  // the user asked to stop: no further point is wanted

    static FValue Of(const Complex& v) { return {true, v, {}, false}; }
    static FValue Failure(std::string why) { return {false, {}, std::move(why), false}; }
    static FValue Stop() { return {false, {}, "stopped", true}; }
};

using LaplaceFunction = std::function<FValue(const Complex& s)>;

}  // namespace lapdesk
