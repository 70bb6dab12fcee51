#include "transform/split_numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <system_error>

namespace lapdesk {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t SkipDigits(std::string_view s, std::size_t i) {
    while (i < s.size() && IsDigit(s[i]))
        ++i;
    return i;
}

// Length of the number text at the start: [sign] digits [. digits] with at
// least one digit, then an exponent only when it has digits.
std::size_t NumberLength(std::string_view s) {
    std::size_t i = 0;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    const std::size_t intStart = i;
    i = SkipDigits(s, i);
    std::size_t digits = i - intStart;
    if (i < s.size() && s[i] == '.') {
        const std::size_t fracStart = ++i;
        i = SkipDigits(s, i);
        digits += i - fracStart;
    }
    if (digits == 0) return 0;
    if (i < s.size() && (s[i] == 'E' || s[i] == 'e')) {
        std::size_t e = i + 1;
        if (e < s.size() && (s[e] == '+' || s[e] == '-')) ++e;
        const std::size_t end = SkipDigits(s, e);
        if (end > e) i = end;
    }
    return i;
}

// For a number text (no sign) out of range for a double: true when it is
// too small (order of magnitude below 0), false when it is too large.
bool TooSmallForDouble(std::string_view number) {
    const std::size_t e = number.find_first_of("Ee");
    const std::string_view mantissa = number.substr(0, e);
    const std::size_t first = mantissa.find_first_of("123456789");
    if (first == std::string_view::npos) return true;  // zero, whatever the exponent
    long long exponent = 0;
    if (e != std::string_view::npos) {
        std::string_view digits = number.substr(e + 1);
        const bool negative = digits.front() == '-';
        if (digits.front() == '+' || negative) digits.remove_prefix(1);
        const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
        if (parsed.ec != std::errc()) return negative;  // an exponent that large decides alone
        if (negative) exponent = -exponent;
    }
    const std::size_t dot = std::min(mantissa.find('.'), mantissa.size());
    const auto magnitude = first < dot ? static_cast<long long>(dot - first - 1)
                                       : -static_cast<long long>(first - dot);
    return magnitude + exponent < 0;
}

}  // namespace

std::optional<double> LeadingNumberIfAny(std::string_view text) {
    if (NumberLength(text) == 0) return std::nullopt;
    return LeadingNumber(text);
}

double LeadingNumber(std::string_view text) {
    std::string_view number = text.substr(0, NumberLength(text));
    if (number.empty()) return 0.0;
    const bool negative = number.front() == '-';
    if (number.front() == '+' || number.front() == '-') number.remove_prefix(1);
    double value = 0.0;
    const std::errc ec = std::from_chars(number.data(), number.data() + number.size(), value).ec;
    if (ec == std::errc::result_out_of_range) value = TooSmallForDouble(number) ? 0.0 : HUGE_VAL;
    return negative ? -value : value;
}

bool SplitNumbers(std::string_view line, std::string_view delimiter, int max, int& count,
                  NumberRow& values) {
    count = 0;
    const std::string_view separator = delimiter.empty() ? std::string_view(" ") : delimiter;
    std::size_t pos = 0;
    while (true) {
        pos = line.find_first_not_of(' ', pos);
        if (pos == std::string_view::npos) break;
        if (count == max + 1 || count == static_cast<int>(values.size())) break;
        const std::size_t tokenEnd = line.find(' ', pos);
        values[count++] = LeadingNumber(line.substr(pos, tokenEnd - pos));
        const std::size_t next = line.find(separator, pos);
        if (next == std::string_view::npos) break;
        pos = next + separator.size();
        if (pos >= line.size()) break;
    }
    return count >= 1;
}

}  // namespace lapdesk
