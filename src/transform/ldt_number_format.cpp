#include "transform/ldt_number_format.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <string_view>

namespace lapdesk {

namespace {

// Decimal exponent of m > 0, taken from its shortest exact text so that no
// rounding can carry it to the next power of ten.
int DecimalExponent(double m) {
    char buffer[64];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, m, std::chars_format::scientific);
    *result.ptr = '\0';
    const char* e = buffer;
    while (*e != 'e')
        ++e;
    return std::atoi(e + 1);
}

// True when m >= 0 lies exactly halfway between two multiples of 10^p. Then
// m * 2^(1-p) is an odd integer and, for p > 0, a multiple of 5^p (a tie
// with no exact double is impossible, which the test relies on).
bool IsDecimalTie(double m, int p) {
    const double y = std::ldexp(m, 1 - p);
    if (y != std::trunc(y) || std::fmod(y, 2.0) != 1.0) return false;
    if (p <= 0) return true;
    return p <= 22 && std::fmod(y, std::pow(5.0, p)) == 0.0;  // 5^22 is the last exact power
}

// printf rounds exact ties to even; moving a tie one unit outwards makes it
// round away from zero instead and changes nothing else.
double AwayFromZeroAtTie(double m, int p) {
    return IsDecimalTie(m, p) ? std::nextafter(m, HUGE_VAL) : m;
}

const char* Sign(double x) {
    return x < 0.0 ? "-" : "";
}

// The parts joined by appending (GCC 12 reports a false -Wrestrict for a
// literal + std::string at -O3).
std::string Field(std::initializer_list<std::string_view> parts) {
    std::string field;
    for (const std::string_view part : parts)
        field.append(part);
    return field;
}

}  // namespace

// The digits as printf's "%.*E" writes them (correctly rounded, ties to
// even, an exponent of at least two digits), by the much cheaper to_chars.
std::string ScientificMagnitude(double x, int decimals) {
    double m = std::fabs(x);
    if (m != 0.0) m = AwayFromZeroAtTie(m, DecimalExponent(m) - decimals);
    char buffer[64];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, m, std::chars_format::scientific, decimals);
    std::string text(buffer, result.ptr);
    text[text.find('e')] = 'E';
    return text;
}

std::string FormatWordNumber(int n) {
    return Field({"    ", n == 0 ? std::string() : std::to_string(n), "    "});
}

std::string FormatTend(double x) {
    return Field({"  ", Sign(x), ScientificMagnitude(x, 3), " "});
}

std::string FormatGanma(double x) {
    char buffer[400];
    std::snprintf(buffer, sizeof buffer, "%.3f", AwayFromZeroAtTie(std::fabs(x), -3));
    std::string digits = buffer;
    if (digits.starts_with("0.")) digits.erase(0, 1);
    while (digits.back() == '0' && digits[digits.size() - 2] != '.')
        digits.pop_back();
    return Field({"   ", Sign(x), digits});
}

std::string FormatSample(double x) {
    return Field({x < 0.0 ? "  -" : "   ", ScientificMagnitude(x, 7)});
}

std::string FormatTimeValue(double x) {
    return Field({x < 0.0 ? "  -" : "   ", ScientificMagnitude(x, 3)});
}

}  // namespace lapdesk
