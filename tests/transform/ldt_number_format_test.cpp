#include "transform/ldt_number_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace lapdesk {
namespace {

struct FormatRow {
    const char* name;
    std::function<std::string(double)> format;
    double value;
    std::string text;
};

// Names the row in test listings instead of dumping its bytes.
void PrintTo(const FormatRow& row, std::ostream* os) {
    *os << row.name;
}

class NumberPictures : public testing::TestWithParam<FormatRow> {};

TEST_P(NumberPictures, FormatExactly) {
    const FormatRow& row = GetParam();
    EXPECT_EQ(row.format(row.value), row.text);
}

const auto kWordNumber = [](double x) { return FormatWordNumber(static_cast<int>(x)); };

INSTANTIATE_TEST_SUITE_P(
    Pictures, NumberPictures,
    testing::Values(FormatRow{"N256", kWordNumber, 256, "    256    "},
                    FormatRow{"N4096", kWordNumber, 4096, "    4096    "},
                    FormatRow{"NZeroHasNoDigit", kWordNumber, 0, "        "},
                    FormatRow{"TFive", FormatTend, 5, "  5.000E+00 "},
                    FormatRow{"TSmall", FormatTend, 0.0125, "  1.250E-02 "},
                    FormatRow{"TRoundsUp", FormatTend, 123456, "  1.235E+05 "},
                    FormatRow{"GammaFive", FormatGanma, 5, "   5.0"},
                    FormatRow{"GammaQuarter", FormatGanma, 0.25, "   .25"},
                    FormatRow{"GammaThreeDecimals", FormatGanma, 12.3456, "   12.346"},
                    FormatRow{"GammaTieAwayFromZero", FormatGanma, 1.0625, "   1.063"},
                    FormatRow{"GammaTinyShowsOneZero", FormatGanma, 0.0004, "   .0"},
                    FormatRow{"GammaCarry", FormatGanma, 9.9996, "   10.0"},
                    FormatRow{"SamplePositive", FormatSample, 51.2, "   5.1200000E+01"},
                    FormatRow{"SampleNegative", FormatSample, -51.2, "  -5.1200000E+01"},
                    FormatRow{"SampleZero", FormatSample, 0.0, "   0.0000000E+00"},
                    FormatRow{"SampleNegativeZero", FormatSample, -0.0, "   0.0000000E+00"},
                    FormatRow{"SampleRounds", FormatSample, 2.0 / 3.0, "   6.6666667E-01"},
                    FormatRow{"SampleCarriesExponent", FormatSample, 9.99999999,
                              "   1.0000000E+01"},
                    FormatRow{"SampleTieBelowOne", FormatSample, 1.00390625, "   1.0039063E+00"},
                    FormatRow{"SampleNegativeTie", FormatSample, -1.00390625, "  -1.0039063E+00"},
                    FormatRow{"SampleTieAtUnits", FormatSample, 12345678.5, "   1.2345679E+07"},
                    FormatRow{"SampleTieAtTens", FormatSample, 123456785, "   1.2345679E+08"},
                    FormatRow{"SampleNotQuiteATie", FormatSample, 123456784.99, "   1.2345678E+08"},
                    FormatRow{"SampleThreeDigitExponent", FormatSample, 1e100, "   1.0000000E+100"},
                    FormatRow{"SampleSmallestDouble", FormatSample, 4.9406564584124654e-324,
                              "   4.9406565E-324"},
                    FormatRow{"ValuePositive", FormatTimeValue, 0.01953125, "   1.953E-02"},
                    FormatRow{"ValueTie", FormatTimeValue, 1.0625, "   1.063E+00"},
                    FormatRow{"ValueNegativeTie", FormatTimeValue, -1.0625, "  -1.063E+00"},
                    FormatRow{"ValueNegative", FormatTimeValue, -0.000123456, "  -1.235E-04"}),
    [](const auto& info) { return std::string(info.param.name); });

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
