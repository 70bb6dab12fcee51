#include "transform/ldt_number_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <functional>
#include <random>
#include <string>

namespace lapdesk {
namespace {

// Ties round away from zero; a carry moves into the exponent.
TEST(NumberPictures, FormatExactly) {
    const auto wordNumber = [](double x) { return FormatWordNumber(static_cast<int>(x)); };
    const struct {
        std::function<std::string(double)> format;
        double value;
        std::string text;
    } rows[] = {{wordNumber, 256, "    256    "},
                {wordNumber, 0, "        "},
                {FormatTend, 0.0125, "  1.250E-02 "},
                {FormatGanma, 5, "   5.0"},
                {FormatGanma, 0.25, "   .25"},
                {FormatGanma, 12.3456, "   12.346"},
                {FormatGanma, 0.0004, "   .0"},
                {FormatGanma, 9.9996, "   10.0"},
                {FormatSample, -51.2, "  -5.1200000E+01"},
                {FormatSample, -0.0, "   0.0000000E+00"},
                {FormatSample, 9.99999999, "   1.0000000E+01"},
                {FormatSample, -1.00390625, "  -1.0039063E+00"},
                {FormatSample, 123456784.99, "   1.2345678E+08"},
                {FormatSample, 1e100, "   1.0000000E+100"},
                {FormatSample, 4.9406564584124654e-324, "   4.9406565E-324"},
                {FormatTimeValue, 0.01953125, "   1.953E-02"}};
    for (const auto& row : rows)
        EXPECT_EQ(row.format(row.value), row.text) << row.value;
}

// Away from ties the digits are printf's, over the whole range of doubles.
TEST(NumberPictures, DigitsArePrintfs) {
    std::mt19937_64 random(20261126);
    std::uniform_real_distribution<double> mantissa(1.0, 10.0);
    std::uniform_int_distribution<int> exponent(-320, 307);
    for (int k = 0; k < 20000; ++k) {
        const double x = mantissa(random) * std::pow(10.0, exponent(random));
        for (const int decimals : {3, 7}) {
            char expected[400];
            std::snprintf(expected, sizeof expected, "%.*E", decimals, x);
            ASSERT_EQ(ScientificMagnitude(-x, decimals), expected) << x;
        }
    }
}

}  // namespace
}  // namespace lapdesk
