// The accuracy features on the command line: the summary line of the
// result's estimated error and one "warning:" line per finding on standard
// error, and the accurate inversion's table as CSV.
#pragma once

#include <string>

#include "transform/accurate/accuracy_run.h"

namespace lapdesk::cli {

// Prints the summary and the warnings; returns how many warnings.
int PrintAccuracyReport(const AccuracyReport& report, const TransformDriver& fft);

// "t,y,error,status", one row per point, shortest round-trip numbers, LF
// line ends. status is ok, not_converged, fft_mismatch or not_applicable
// (then y and error are empty); only ok rows are accurate to their error.
std::string AccurateCsv(const AccurateResult& result);

}  // namespace lapdesk::cli
