// The accuracy features on the command line: one "warning:" line per finding
// on standard error, and the accurate inversion's table as CSV.
#pragma once

#include <string>

#include "transform/accurate/accuracy_run.h"

namespace lapdesk::cli {

void PrintAccuracyWarnings(const AccuracyReport& report, const Conditions& conditions);

// "t,y,error" and one row per point where the accurate inversion applied,
// shortest round-trip numbers, LF line ends.
std::string AccurateCsv(const AccurateResult& result);

}  // namespace lapdesk::cli
