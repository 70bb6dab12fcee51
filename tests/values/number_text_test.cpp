// Numeric literals to values and values to the calculator's text.
#include <gtest/gtest.h>

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

// A rejected text leaves the value alone; numbers too small for a double
// read as 0, too large ones are rejected, whatever the digits around them.
TEST(TextToReal, AcceptsOnlyRealNumbers) {
    const std::string zeros(330, '0');
    const struct {
        std::string text;
        std::optional<double> value;  // empty: not a real number
    } rows[] = {{"  3  ", 3.0},
                {"\t-2.5\t", -2.5},
                {".5", 0.5},
                {"1e-3", 0.001},
                {"1.0000000000000002", 1.0000000000000002},
                {"1E-400", 0.0},
                {"0." + zeros + "1", 0.0},
                {"1000E-330", 0.0},
                {"1" + zeros + "E-5", std::nullopt},
                {"0.001E400", std::nullopt},
                {"4.9E-324", 4.9e-324},
                {"", std::nullopt},
                {"abc", std::nullopt},
                {"1E", std::nullopt},
                {"1.2.3", std::nullopt},
                {"(1)", std::nullopt},
                {"1,5", std::nullopt},
                {"1 2", std::nullopt},
                {"0x10", std::nullopt},
                {"inf", std::nullopt},
                {"1E400", std::nullopt},
                {"-", std::nullopt}};
    for (const auto& row : rows) {
        double x = -12345.0;
        ASSERT_EQ(TextToReal(row.text, x), row.value.has_value()) << '"' << row.text << '"';
        EXPECT_EQ(x, row.value.value_or(-12345.0)) << '"' << row.text << '"';
    }
}

// A literal is real or imaginary, never both; an accepted text is consumed
// and a rejected one stays as it was.
TEST(TextToComplex, AcceptsRealOrImaginaryLiterals) {
    const struct {
        const char* text;
        std::optional<Complex> value;
    } rows[] = {{"4", Complex{4, 0}},   {"2.5j", Complex{0, 2.5}},    {"3J", Complex{0, 3}},
                {"3I", Complex{0, 3}},  {"1E-3i", Complex{0, 0.001}}, {"-2j", Complex{0, -2}},
                {"1j", Complex{0, 1}},  {" 3j ", Complex{0, 3}},      {"j", std::nullopt},
                {"3jj", std::nullopt},  {"+j", std::nullopt},         {"(1)j", std::nullopt},
                {"3+4j", std::nullopt}, {"3k", std::nullopt},         {"", std::nullopt}};
    for (const auto& row : rows) {
        std::string text = row.text;
        Complex z{7, 7};
        ASSERT_EQ(TextToComplex(text, z), row.value.has_value()) << '"' << row.text << '"';
        EXPECT_EQ(z, row.value.value_or(Complex{7, 7})) << '"' << row.text << '"';
        EXPECT_EQ(text, row.value ? "" : row.text) << '"' << row.text << '"';
    }
}

// ------------------------------------------------------------ round digits

TEST(RoundToDigits, RoundsToSignificantDigits) {
    const struct {
        double x;
        std::int16_t digits;
        double expected;
    } rows[] = {{1234567.89, 6, 1234570.0},
                {0.000123456789, 3, 0.000123},
                {9.999996, 6, 10.0},
                {1.23456789e-20, 6, 1.23457e-20},
                {0.0, 6, 0.0},
                {987.0, 0, 1000.0},
                {3.14159, 2, 3.1}};
    for (const auto& row : rows) {
        EXPECT_EQ(RoundToDigits(row.x, row.digits), row.expected)
            << row.x << " to " << row.digits << " digits";
    }
    // Text that is no number comes back unchanged.
    EXPECT_EQ(RoundToDigits(std::string("abc"), 6), "abc");
    EXPECT_EQ(RoundToDigits(std::string(""), 6), "");
    EXPECT_EQ(RoundToDigits(std::string("1234567.89"), 6), "1234570");
}

// --------------------------------------------------------- number to text

// Fifteen significant digits, E+nn/E-nn for large and small values, the
// imaginary part's sign only between two parts; rounded, six digits and
// parts under 1E-10 of the modulus dropped. 3-4j, 2j, (-1)^0.5 plain and
// rounded, and 1.23457-9.87654j are in the calc golden files.
TEST(ComplexToText, Formats) {
    const struct {
        Complex z;
        bool rounded;
        const char* text;
    } rows[] = {{{-0.0, 0}, false, "0"},
                {{-0.5, 0}, false, "-0.5"},
                {{2.0 / 3, 0}, false, "0.666666666666667"},
                {{123456789012345, 0}, false, "123456789012345"},
                {{123456789012345678.0, 0}, false, "1.23456789012346E+17"},
                {{-2.5e-300, 0}, false, "-2.5E-300"},
                {{1.5e20, -1e-7}, false, "1.5E+20-1E-07j"},
                {{1e-12, -1}, true, "1j"},
                {{5e-11, 5e-11}, true, "0"},
                {{1, 1e-9}, true, "1+1E-09j"},
                {{1e300, -1e300}, true, "1E+300-1E+300j"}};
    for (const auto& row : rows) {
        Complex z = row.z;
        EXPECT_EQ(ComplexToText(z, row.rounded), row.text) << row.z;
    }
}

// The rounded display writes the rounded value back into the caller's
// value; the plain display leaves it alone.
TEST(ComplexToText, RoundedValueIsWrittenBack) {
    Complex z{1, 1e-12};
    EXPECT_EQ(ComplexToText(z, false), "1+1E-12j");
    EXPECT_EQ(z, (Complex{1, 1e-12}));
    EXPECT_EQ(ComplexToText(z, true), "1");
    EXPECT_EQ(z, (Complex{1, 0}));

    Complex rounded{1234567.89, -0.123456789};
    EXPECT_EQ(ComplexToText(rounded, true), "1234570-0.123457j");
    EXPECT_EQ(rounded, (Complex{1234570.0, -0.123457}));
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
