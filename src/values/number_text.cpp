#include "values/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace lapdesk {

namespace {

constexpr int kTextDigits = 15;  // significant digits DoubleToText writes

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view TrimBlanks(std::string_view s) {
    while (!s.empty() && IsBlank(s.front()))
        s.remove_prefix(1);
    while (!s.empty() && IsBlank(s.back()))
        s.remove_suffix(1);
    return s;
}

// Checks the shape [sign] digits [. digits] [E [sign] digits] with at least
// one mantissa digit. `order` gets the power of ten of the first significant
// digit (clamped), which tells a number too large for a double from one too
// small: 1000E-330 underflows and 0.001E400 overflows, whatever the sign of
// the exponent says.
bool IsRealShape(std::string_view s, long long& order) {
    constexpr long long kClamp = 1'000'000'000;
    std::size_t i = 0;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    std::size_t digits = 0;
    bool significant = false;
    long long integerPlaces = 0;  // digits before the point from the first significant one
    long long leadingZeros = 0;   // zeros after the point before the first significant digit
    while (i < s.size() && IsDigit(s[i])) {
        significant = significant || s[i] != '0';
        if (significant) integerPlaces = std::min(integerPlaces + 1, kClamp);
        ++i, ++digits;
    }
    if (i < s.size() && s[i] == '.') {
        ++i;
        while (i < s.size() && IsDigit(s[i])) {
            if (!significant && s[i] == '0') leadingZeros = std::min(leadingZeros + 1, kClamp);
            significant = significant || s[i] != '0';
            ++i, ++digits;
        }
    }
    if (digits == 0) return false;
    order = integerPlaces > 0 ? integerPlaces - 1 : -leadingZeros - 1;
    if (i < s.size() && (s[i] == 'E' || s[i] == 'e')) {
        ++i;
        bool negative = false;
        if (i < s.size() && (s[i] == '+' || s[i] == '-')) negative = s[i++] == '-';
        long long exponent = 0;
        std::size_t expDigits = 0;
        while (i < s.size() && IsDigit(s[i])) {
            exponent = std::min(exponent * 10 + (s[i] - '0'), kClamp);
            ++i, ++expDigits;
        }
        if (expDigits == 0) return false;
        order += negative ? -exponent : exponent;
    }
    return i == s.size();
}

using TextBuffer = char[64];

// The digits DoubleToText shows (lower-case exponent); returns their end.
const char* WriteDigits(double x, TextBuffer& buffer) {
    return std::to_chars(buffer, buffer + sizeof buffer, x, std::chars_format::general, kTextDigits)
        .ptr;
}

std::string UpperExponent(const char* begin, const char* end) {
    std::string text(begin, end);
    for (char& c : text) {
        if (c == 'e') c = 'E';
    }
    return text;
}

}  // namespace

bool TextToReal(std::string_view text, double& x) {
    std::string_view s = TrimBlanks(text);
    long long order = 0;
    if (s.empty() || s.front() == '(' || !IsRealShape(s, order)) return false;
    const bool negative = s.front() == '-';
    if (s.front() == '+' || s.front() == '-') s.remove_prefix(1);
    double value = 0.0;
    const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), value);
    if (ec == std::errc::result_out_of_range) {
        if (order >= 0) return false;  // too large for a double
        value = 0.0;                   // too small: underflows to zero
    } else if (ec != std::errc() || end != s.data() + s.size()) {
        return false;
    }
    x = negative ? -value : value;
    return true;
}

bool TextToComplex(std::string& text, Complex& z) {
    double value = 0.0;
    if (TextToReal(text, value)) {
        z = {value, 0.0};
        text.clear();
        return true;
    }
    const std::string_view s = TrimBlanks(text);
    if (s.empty()) return false;
    const char last = s.back();
    if (last != 'i' && last != 'j' && last != 'I' && last != 'J') return false;
    if (!TextToReal(s.substr(0, s.size() - 1), value)) return false;
    z = {0.0, value};
    text.clear();
    return true;
}

double RoundToDigits(double x, std::int16_t n) {
    if (!std::isfinite(x)) return x;
    const int precision = n > 0 ? n - 1 : 0;
    char buffer[64];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, x, std::chars_format::scientific, precision);
    double rounded = x;
    std::from_chars(buffer, result.ptr, rounded);
    return rounded;
}

std::string RoundToDigits(const std::string& text, std::int16_t n) {
    double x = 0.0;
    if (!TextToReal(text, x)) return text;
    return DoubleToText(RoundToDigits(x, n));
}

std::string DoubleToText(double x) {
    if (x == 0.0) return "0";
    TextBuffer buffer;
    return UpperExponent(buffer, WriteDigits(x, buffer));
}

std::optional<double> DoubleThroughText(double x) {
    if (x == 0.0) return 0.0;
    TextBuffer buffer;
    const char* written = WriteDigits(x, buffer);
    double value = 0.0;
    const auto [end, ec] = std::from_chars(buffer, written, value);
    if (ec != std::errc() || end != written) return std::nullopt;
    return value;
}

std::string ComplexToText(Complex& z, bool rounded) {
    if (rounded) {
        z.Re = RoundToDigits(z.Re, kRoundedDigits);
        z.Im = RoundToDigits(z.Im, kRoundedDigits);
        const double re = std::fabs(z.Re);
        const double im = std::fabs(z.Im);
        if (std::hypot(z.Re, z.Im) < 1e-10) {
            z = {};
        } else if (im < re && im / re < 1e-10) {
            z.Im = 0.0;
        } else if (re < im && re / im < 1e-10) {
            z.Re = 0.0;
        }
    }
    if (z.Im == 0.0) return DoubleToText(z.Re);
    // A pure imaginary value is written without its sign: -2j shows as "2j".
    if (z.Re == 0.0) return DoubleToText(std::fabs(z.Im)) + "j";
    if (z.Im < 0.0) return DoubleToText(z.Re) + "-" + DoubleToText(-z.Im) + "j";
    return DoubleToText(z.Re) + "+" + DoubleToText(z.Im) + "j";
}

}  // namespace lapdesk
