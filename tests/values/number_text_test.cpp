// Numeric literals to values and values to the calculator's text.
#include <gtest/gtest.h>

#include "named_rows.h"

#include <clocale>
#include <cmath>
#include <limits>
#include <optional>
#include <ostream>
#include <string>

#include "complex_near.h"
#include "values/complex.h"
#include "values/number_text.h"

namespace lapdesk {
namespace {

template <typename Row>
std::string RowName(const ::testing::TestParamInfo<Row>& info) {
    return info.param.name;
}

// ------------------------------------------------------------ text to real

struct RealRow {
    const char* name;
    const char* text;
    std::optional<double> value;  // empty: not a real number
};

class TextToRealRows : public ::testing::TestWithParam<RealRow> {};

TEST_P(TextToRealRows, AcceptOnlyRealNumbers) {
    const RealRow& row = GetParam();
    double x = -12345.0;
    const bool ok = TextToReal(row.text, x);
    ASSERT_EQ(ok, row.value.has_value()) << '"' << row.text << '"';
    if (row.value) {
        EXPECT_EQ(x, *row.value);
    } else {
        EXPECT_EQ(x, -12345.0) << "a rejected text must not touch the value";
    }
}

INSTANTIATE_TEST_SUITE_P(
    Literals, TextToRealRows,
    ::testing::Values(
        RealRow{"Integer", "3", 3.0}, RealRow{"SurroundingBlanks", "  3  ", 3.0},
        RealRow{"Tabs", "\t-2.5\t", -2.5}, RealRow{"PlusSign", "+2", 2.0},
        RealRow{"LeadingPoint", ".5", 0.5}, RealRow{"TrailingPoint", "5.", 5.0},
        RealRow{"NegativeExponent", "1E-3", 0.001}, RealRow{"LowerCaseExponent", "1e3", 1000.0},
        RealRow{"PlusExponent", "2.5E+2", 250.0},
        RealRow{"NextDoubleAboveOne", "1.0000000000000002", 1.0000000000000002},
        RealRow{"UnderflowIsZero", "1E-400", 0.0},
        RealRow{"UnderflowWithoutExponent",
                "0.000000000000000000000000000000000000000000000000000000000000000000"
                "000000000000000000000000000000000000000000000000000000000000000000"
                "000000000000000000000000000000000000000000000000000000000000000000"
                "000000000000000000000000000000000000000000000000000000000000000000"
                "000000000000000000000000000000000000000000000000000000000000000000"
                "0000000000000000000000000000000000000000000000000000000000000000001",
                0.0},
        RealRow{"UnderflowDespitePositiveMantissaDigits", "1000E-330", 0.0},
        RealRow{"OverflowDespiteNegativeExponent",
                "1000000000000000000000000000000000000000000000000000000000000000000"
                "000000000000000000000000000000000000000000000000000000000000000000"
                "000000000000000000000000000000000000000000000000000000000000000000"
                "000000000000000000000000000000000000000000000000000000000000000000"
                "000000000000000000000000000000000000000000000000000000000000000000"
                "000000000000000000000000000000000000000000000000000000000000000000E-5",
                std::nullopt},
        RealRow{"OverflowDespiteLeadingZeros", "0.001E400", std::nullopt},
        RealRow{"Subnormal", "4.9E-324", 4.9e-324}, RealRow{"Empty", "", std::nullopt},
        RealRow{"OnlyBlanks", "   ", std::nullopt}, RealRow{"Letters", "abc", std::nullopt},
        RealRow{"ExponentWithoutDigits", "1E", std::nullopt},
        RealRow{"ExponentWithoutMantissa", "E3", std::nullopt},
        RealRow{"TwoPoints", "1.2.3", std::nullopt},
        RealRow{"AccountingNegative", "(1)", std::nullopt},
        RealRow{"CommaSeparator", "1,5", std::nullopt}, RealRow{"TwoSigns", "--1", std::nullopt},
        RealRow{"InnerBlank", "1 2", std::nullopt}, RealRow{"Hexadecimal", "0x10", std::nullopt},
        RealRow{"Infinity", "inf", std::nullopt}, RealRow{"NotANumber", "nan", std::nullopt},
        RealRow{"TooLarge", "1E400", std::nullopt}, RealRow{"LoneSign", "-", std::nullopt},
        RealRow{"LonePoint", ".", std::nullopt}),
    RowName<RealRow>);

// --------------------------------------------------------- text to complex

struct ComplexRow {
    const char* name;
    const char* text;
    std::optional<Complex> value;
};

class TextToComplexRows : public ::testing::TestWithParam<ComplexRow> {};

TEST_P(TextToComplexRows, AcceptRealOrImaginaryLiterals) {
    const ComplexRow& row = GetParam();
    std::string text = row.text;
    Complex z{7, 7};
    const bool ok = TextToComplex(text, z);
    ASSERT_EQ(ok, row.value.has_value()) << '"' << row.text << '"';
    if (row.value) {
        EXPECT_EQ(z, *row.value);
        EXPECT_EQ(text, "") << "a literal is consumed";
    } else {
        EXPECT_EQ(z, (Complex{7, 7}));
        EXPECT_EQ(text, row.text) << "a rejected text stays as it was";
    }
}

INSTANTIATE_TEST_SUITE_P(Literals, TextToComplexRows,
                         ::testing::Values(ComplexRow{"Real", "4", Complex{4, 0}},
                                           ComplexRow{"LowerJ", "2.5j", Complex{0, 2.5}},
                                           ComplexRow{"UpperJ", "3J", Complex{0, 3}},
                                           ComplexRow{"UpperI", "3I", Complex{0, 3}},
                                           ComplexRow{"LowerI", "1E-3i", Complex{0, 0.001}},
                                           ComplexRow{"NegativeImaginary", "-2j", Complex{0, -2}},
                                           ComplexRow{"UnitSpelledOut", "1j", Complex{0, 1}},
                                           ComplexRow{"Blanks", " 3j ", Complex{0, 3}},
                                           ComplexRow{"LoneJ", "j", std::nullopt},
                                           ComplexRow{"DoubleJ", "3jj", std::nullopt},
                                           ComplexRow{"SignedLoneJ", "+j", std::nullopt},
                                           ComplexRow{"Bracketed", "(1)", std::nullopt},
                                           ComplexRow{"BracketedImaginary", "(1)j", std::nullopt},
                                           ComplexRow{"BothParts", "3+4j", std::nullopt},
                                           ComplexRow{"OtherLetter", "3k", std::nullopt},
                                           ComplexRow{"Empty", "", std::nullopt},
                                           ComplexRow{"Name", "x", std::nullopt}),
                         RowName<ComplexRow>);

// ------------------------------------------------------------ round digits

TEST(RoundToDigits, RoundsToSignificantDigits) {
    struct Row {
        double x;
        std::int16_t digits;
        double expected;
    };
    const Row rows[] = {
        {1234567.89, 6, 1234570.0},
        {-1234567.89, 6, -1234570.0},
        {0.000123456789, 3, 0.000123},
        {9.999996, 6, 10.0},
        {1.23456789e-20, 6, 1.23457e-20},
        {0.0, 6, 0.0},
        {987.0, 0, 1000.0},
        {987.0, 1, 1000.0},
        {3.14159, 2, 3.1},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(RoundToDigits(row.x, row.digits), row.expected)
            << row.x << " to " << row.digits << " digits";
    }
}

TEST(RoundToDigits, TextThatIsNoNumberComesBackUnchanged) {
    EXPECT_EQ(RoundToDigits(std::string("abc"), 6), "abc");
    EXPECT_EQ(RoundToDigits(std::string(""), 6), "");
    EXPECT_EQ(RoundToDigits(std::string("1234567.89"), 6), "1234570");
}

// --------------------------------------------------------- number to text

struct TextRow {
    const char* name;
    Complex z;
    bool rounded;
    const char* text;
};

class ComplexToTextRows : public ::testing::TestWithParam<TextRow> {};

TEST_P(ComplexToTextRows, Format) {
    const TextRow& row = GetParam();
    Complex z = row.z;
    EXPECT_EQ(ComplexToText(z, row.rounded), row.text);
}

const Complex kMinusOneToTheHalf{std::cos(kArgOfNegativeReal / 2), 1.0};

INSTANTIATE_TEST_SUITE_P(
    Display, ComplexToTextRows,
    ::testing::Values(
        TextRow{"Zero", {0, 0}, false, "0"}, TextRow{"MinusZero", {-0.0, 0}, false, "0"},
        TextRow{"Real", {3, 0}, false, "3"}, TextRow{"NegativeFraction", {-0.5, 0}, false, "-0.5"},
        TextRow{"PositiveImaginary", {0, 2}, false, "2j"},
        TextRow{"NegativeImaginaryLosesItsSign", {0, -2}, false, "2j"},
        TextRow{"MinusBetweenParts", {3, -4}, false, "3-4j"},
        TextRow{"PlusBetweenParts", {3, 4}, false, "3+4j"},
        TextRow{"NegativeRealPart", {-3, 4}, false, "-3+4j"},
        TextRow{"FifteenDigits", {1.0 / 3, 0}, false, "0.333333333333333"},
        TextRow{"FifteenDigitsRoundUp", {2.0 / 3, 0}, false, "0.666666666666667"},
        TextRow{"LargestPlain", {123456789012345, 0}, false, "123456789012345"},
        TextRow{"LargeScientific", {1.5e20, 0}, false, "1.5E+20"},
        TextRow{"LongMantissaScientific", {123456789012345678.0, 0}, false, "1.23456789012346E+17"},
        TextRow{"SmallScientific", {1e-7, 0}, false, "1E-07"},
        TextRow{"ThreeDigitExponent", {-2.5e-300, 0}, false, "-2.5E-300"},
        TextRow{"ScientificInsideComplex", {1.5e20, -1e-7}, false, "1.5E+20-1E-07j"},
        TextRow{"MinusOneToTheHalf", kMinusOneToTheHalf, false, "1.61554457443259E-15+1j"},
        TextRow{"MinusOneToTheHalfRounded", kMinusOneToTheHalf, true, "1j"},
        TextRow{"RoundedToSixDigits", {1.23456789, -9.87654321}, true, "1.23457-9.87654j"},
        TextRow{"RoundedLarge", {1234567.89, 0}, true, "1234570"},
        TextRow{"RoundedDropsTinyImaginary", {1, 1e-12}, true, "1"},
        TextRow{"RoundedDropsTinyReal", {1e-12, -1}, true, "1j"},
        TextRow{"RoundedTinyModulusIsZero", {5e-11, 5e-11}, true, "0"},
        TextRow{"RoundedKeepsEqualParts", {1e-9, 1e-9}, true, "1E-09+1E-09j"},
        TextRow{"RoundedKeepsSmallButNotNegligible", {1, 1e-9}, true, "1+1E-09j"},
        TextRow{"UnroundedKeepsTinyPart", {1, 1e-12}, false, "1+1E-12j"}),
    RowName<TextRow>);

TEST(ComplexToText, RoundedValueIsWrittenBack) {
    Complex z{1, 1e-12};
    EXPECT_EQ(ComplexToText(z, true), "1");
    EXPECT_EQ(z, (Complex{1, 0}));

    Complex rounded{1234567.89, -0.123456789};
    EXPECT_EQ(ComplexToText(rounded, true), "1234570-0.123457j");
    EXPECT_EQ(rounded, (Complex{1234570.0, -0.123457}));
}

TEST(ComplexToText, UnroundedValueIsLeftAlone) {
    Complex z{1, 1e-12};
    ComplexToText(z, false);
    EXPECT_EQ(z, (Complex{1, 1e-12}));
}

TEST(ComplexToText, LargeValuesDoNotFaultWhenRounded) {
    Complex z{1e300, -1e300};
    EXPECT_EQ(ComplexToText(z, true), "1E+300-1E+300j");
}

TEST(ComplexToText, TextReadsBackToTheSameDigits) {
    for (double x : {0.1, -123.456, 6.02214076e23, 1.602176634e-19, 299792458.0}) {
        Complex z{x, 0};
        double back = 0;
        ASSERT_TRUE(TextToReal(ComplexToText(z, false), back)) << x;
        EXPECT_NEAR(back, x, std::fabs(x) * 1e-14);
    }
}

// ------------------------------------------------------------------ locale

// Number text must not follow the C library's locale: the calculator's
// literals and its display use "." whatever the user's settings.
TEST(NumberTextLocale, CommaLocaleChangesNothing) {
    const std::string saved = std::setlocale(LC_ALL, nullptr);
    const char* candidates[] = {"de_DE.UTF-8", "de_DE.utf8",  "fr_FR.UTF-8", "fr_FR.utf8",
                                "nl_NL.UTF-8", "ru_RU.UTF-8", "de_DE",       "fr_FR"};
    bool found = false;
    for (const char* name : candidates) {
        if (std::setlocale(LC_ALL, name) != nullptr && *std::localeconv()->decimal_point == ',') {
            found = true;
            break;
        }
    }
    if (!found) {
        std::setlocale(LC_ALL, saved.c_str());
        GTEST_SKIP() << "no locale with a decimal comma is installed";
    }
    double x = 0;
    EXPECT_TRUE(TextToReal("1.5", x));
    EXPECT_EQ(x, 1.5);
    EXPECT_FALSE(TextToReal("1,5", x));
    Complex z{2.5, -0.25};
    EXPECT_EQ(ComplexToText(z, false), "2.5-0.25j");
    EXPECT_EQ(RoundToDigits(1234567.89, 6), 1234570.0);
    EXPECT_EQ(RoundToDigits(std::string("0.123456789"), 6), "0.123457");
    std::setlocale(LC_ALL, saved.c_str());
}

}  // namespace
}  // namespace lapdesk
