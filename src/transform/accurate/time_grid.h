// Times at which the accurate inversion is asked for f, beyond the FFT's
// grid t = n*T/N: an even or logarithmic range ("FROM:TO:COUNT[:log]") or a
// list read from a text file (one t a line). Every t must be finite and
// greater than 0; the accurate method does not define f at t = 0.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lapdesk {

struct TimeGrid {
    bool ok = false;
    std::vector<double> times;  // in the order asked for
    std::string reason;         // why not, in words
};

// "1e-3:1e3:121:log" gives 121 times spaced evenly in log t from 1e-3 to
// 1e3; without ":log", evenly in t. COUNT 1 gives FROM alone.
TimeGrid ParseTimeRange(std::string_view text);

// count times from `from` to `to` (0 < from <= to, count >= 1), evenly in t
// or in log t, the ends exactly.
std::vector<double> TimesBetween(double from, double to, std::size_t count, bool log);

// One t per line; blank lines and lines beginning with '#' are skipped.
TimeGrid ParseTimeList(std::string_view text);

// The times sorted, as the accurate inversion takes them, and for each its
// place in the order asked for.
struct SortedTimes {
    std::vector<double> times;
    std::vector<std::size_t> askedAt;
};
SortedTimes SortTimes(const std::vector<double>& times);

}  // namespace lapdesk
