#include "transform/accurate/time_grid.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numeric>

namespace lapdesk {

namespace {

// Accepts only a whole number text, with leading and trailing blanks.
bool ReadNumber(std::string_view text, double& value) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t' || text.back() == '\r'))
        text.remove_suffix(1);
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() && !text.empty();
}

TimeGrid Failed(std::string reason) {
    return {false, {}, std::move(reason)};
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    std::size_t start = 0;
    for (;;) {
        const std::size_t at = text.find(separator, start);
        parts.push_back(text.substr(start, at == std::string_view::npos ? at : at - start));
        if (at == std::string_view::npos) return parts;
        start = at + 1;
    }
}

bool Positive(double t) {
    return std::isfinite(t) && t > 0.0;
}

}  // namespace

TimeGrid ParseTimeRange(std::string_view text) {
    const std::vector<std::string_view> parts = Split(text, ':');
    const bool log = parts.size() == 4 && parts[3] == "log";
    if (parts.size() != 3 && !log)
        return Failed("時刻の範囲は FROM:TO:COUNT か FROM:TO:COUNT:log で書いてください: " +
                      std::string(text));
    double from = 0.0, to = 0.0, count = 0.0;
    if (!ReadNumber(parts[0], from) || !ReadNumber(parts[1], to) || !ReadNumber(parts[2], count))
        return Failed("時刻の範囲に数でない部分があります: " + std::string(text));
    if (!Positive(from) || !Positive(to) || to < from)
        return Failed("時刻の範囲は 0 < FROM ≤ TO にしてください: " + std::string(text));
    if (count < 1 || count > 100000 || count != std::floor(count))
        return Failed("COUNT は 1 から 100000 までの整数にしてください: " + std::string(text));
    return {true, TimesBetween(from, to, static_cast<std::size_t>(count), log), {}};
}

std::vector<double> TimesBetween(double from, double to, std::size_t count, bool log) {
    std::vector<double> times;
    // Weighted ends rather than steps added up: a decade grid then meets
    // 1, 10, 100 exactly.
    const double a = log ? std::log10(from) : from;
    const double b = log ? std::log10(to) : to;
    const double last = count == 1 ? 1.0 : static_cast<double>(count - 1);
    for (std::size_t k = 0; k < count; ++k) {
        const double x = (a * (last - static_cast<double>(k)) + b * static_cast<double>(k)) / last;
        times.push_back(log ? std::pow(10.0, x) : x);
    }
    times.front() = from;  // exactly, whatever the rounding
    times.back() = count == 1 ? from : to;
    return times;
}

TimeGrid ParseTimeList(std::string_view text) {
    TimeGrid grid{true, {}, {}};
    int lineNumber = 0;
    for (std::string_view line : Split(text, '\n')) {
        ++lineNumber;
        const std::size_t first = line.find_first_not_of(" \t\r");
        if (first == std::string_view::npos || line[first] == '#') continue;
        double t = 0.0;
        if (!ReadNumber(line, t) || !Positive(t))
            return Failed(std::to_string(lineNumber) + " 行目: 0 より大きい数ではありません: " +
                          std::string(line.substr(0, 40)));
        grid.times.push_back(t);
    }
    if (grid.times.empty()) return Failed("時刻が一つもありません");
    return grid;
}

SortedTimes SortTimes(const std::vector<double>& times) {
    SortedTimes sorted;
    sorted.askedAt.resize(times.size());
    std::iota(sorted.askedAt.begin(), sorted.askedAt.end(), std::size_t{0});
    std::stable_sort(sorted.askedAt.begin(), sorted.askedAt.end(),
                     [&](std::size_t a, std::size_t b) { return times[a] < times[b]; });
    for (const std::size_t k : sorted.askedAt)
        sorted.times.push_back(times[k]);
    return sorted;
}

}  // namespace lapdesk
