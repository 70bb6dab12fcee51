// How the accuracy messages name a point s and a band of t: shortest
// round-trip numbers, so the user can try the same s in the calculator.
#pragma once

#include <string>

#include "values/complex.h"

namespace lapdesk {

std::string RoundTripText(double x);
std::string PointText(const Complex& s);               // "1.5+2.25j", "1.5-2.25j"
std::string BandText(int band, double t0, double t1);  // "帯 2 (t = 0.5〜2)"

}  // namespace lapdesk
