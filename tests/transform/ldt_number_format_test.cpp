#include "transform/ldt_number_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

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

TEST(NumberPictures, NegativeAndPositiveFieldsHaveEqualWidth) {
    for (const double x : {1.0, 0.5, 123.456, 9.99999999e-9, 3e42, 1e-99}) {
        EXPECT_EQ(FormatSample(-x).size(), FormatSample(x).size()) << x;
        EXPECT_EQ(FormatSample(x).size(), 16u) << x;
        EXPECT_EQ(FormatTimeValue(-x).size(), FormatTimeValue(x).size()) << x;
        EXPECT_EQ(FormatTimeValue(x).size(), 12u) << x;
    }
}

TEST(NumberPictures, EveryExactTieRoundsOutwards) {
    // 100 + i/16 for odd i ends in the digit 5 at the fourth decimal, so it is
    // an exact tie for five decimals of 1.dddddE+02.
    for (int i = 1; i < 2000; i += 2) {
        const double tie = 100.0 + i / 16.0;
        const long long tenThousandths = 1000000 + 625LL * i;  // exact: tie * 10^4
        const std::string digits = std::to_string((tenThousandths + 5) / 10);
        const std::string expected = digits.substr(0, 1) + "." + digits.substr(1) + "E+02";
        ASSERT_EQ(ScientificMagnitude(tie, 5), expected) << tie;
        ASSERT_EQ(ScientificMagnitude(-tie, 5), expected) << -tie;
    }
}

}  // namespace
}  // namespace lapdesk
