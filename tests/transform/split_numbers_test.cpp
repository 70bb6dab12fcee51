#include "transform/split_numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace lapdesk {
namespace {

// The number at the start of a token, 0 when there is none; beyond a double
// it is infinite, below one it is 0, whatever the digits of the mantissa.
TEST(LeadingNumber, ReadsTheNumberAtTheStartOfAToken) {
    const struct {
        std::string text;
        double value;
    } rows[] = {{"1.5E+00,", 1.5},
                {"-2.5e-1", -0.25},
                {".5", 0.5},
                {"12abc", 12},
                {"1E+", 1},
                {"1e5e3", 1e5},
                {"abc", 0},
                {"", 0},
                {",3", 0},
                {"1.2.3", 1.2},
                {"1e-400", 0},
                {"-1e-999999999999999999999", -0.0},
                {"1e99999999999999999999", HUGE_VAL},
                {"0.00000000000000000001e409", HUGE_VAL},
                {"100000000000000000000e-330", 1e-310}};
    for (const auto& row : rows)
        EXPECT_EQ(LeadingNumber(row.text), row.value) << row.text;
}

// The row starts as {-1, -2, -3, -4}: fields past the line keep their
// values; reading stops after max + 1 fields or when the row is full; a
// field that is no number reads 0; an empty delimiter means a blank.
TEST(SplitNumbers, SplitsAsTheReaderDoes) {
    const struct {
        std::string line;
        std::string delimiter;
        int max;
        bool ok;
        int count;
        NumberRow values;
    } rows[] = {{"   1.2500000E+00,  -2.5000000E-01,   0.000E+00,   1.000E+00",
                 ",",
                 3,
                 true,
                 4,
                 {1.25, -0.25, 0, 1}},
                {"    256    ,  5.000E+00 ,   5.0", ",", 3, true, 3, {256, 5, 5, -4}},
                {"1,2,3,4", ",", 1, true, 2, {1, 2, -3, -4}},
                {"1,2,3,4,5,6", ",", 5, true, 4, {1, 2, 3, 4}},
                {"    ", ",", 3, false, 0, {-1, -2, -3, -4}},
                {"", ",", 3, false, 0, {-1, -2, -3, -4}},
                {"  1.5   2.5 3.5", " ", 3, true, 3, {1.5, 2.5, 3.5, -4}},
                {"1.5 2.5", "", 3, true, 2, {1.5, 2.5, -3, -4}},
                {"1,,3", ",", 3, true, 3, {1, 0, 3, -4}},
                {"t,9", ",", 3, true, 2, {0, 9, -3, -4}},
                {"1,2,", ",", 3, true, 2, {1, 2, -3, -4}},
                {"1 x,2", ",", 3, true, 2, {1, 2, -3, -4}},
                {"1::2::3", "::", 3, true, 3, {1, 2, 3, -4}},
                {"1 2 3", ",", 3, true, 1, {1, -2, -3, -4}}};
    for (const auto& row : rows) {
        NumberRow values = {-1, -2, -3, -4};
        int count = -1;
        EXPECT_EQ(SplitNumbers(row.line, row.delimiter, row.max, count, values), row.ok)
            << '"' << row.line << '"';
        EXPECT_EQ(count, row.count) << '"' << row.line << '"';
        EXPECT_EQ(values, row.values) << '"' << row.line << '"';
    }
}

}  // namespace
}  // namespace lapdesk
