#include "transform/split_numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <string>
#include <vector>

namespace lapdesk {
namespace {

TEST(LeadingNumber, ReadsTheNumberAtTheStartOfAToken) {
    struct Row {
        std::string text;
        double value;
    };
    const std::vector<Row> rows = {
        {"1.5E+00,", 1.5},
        {"-2.5e-1", -0.25},
        {"+7", 7},
        {".5", 0.5},
        {"5.", 5},
        {"-.5x", -0.5},
        {"12abc", 12},
        {"1E", 1},
        {"1E+", 1},
        {"1e5e3", 1e5},
        {"abc", 0},
        {"", 0},
        {"-", 0},
        {".", 0},
        {",3", 0},
        {"1.2.3", 1.2},
        {"3D2", 3},
        {"1e-400", 0},
        {"0.000e999999999999999999", 0},
        {"-1e-999999999999999999999", -0.0},
    };
    for (const Row& row : rows)
        EXPECT_EQ(LeadingNumber(row.text), row.value) << row.text;
}

TEST(LeadingNumber, NumbersBeyondADoubleAreInfinite) {
    EXPECT_EQ(LeadingNumber("1e400"), HUGE_VAL);
    EXPECT_EQ(LeadingNumber("-1e400,"), -HUGE_VAL);
    EXPECT_EQ(LeadingNumber("1e99999999999999999999"), HUGE_VAL);
    EXPECT_EQ(LeadingNumber("0.00000000000000000001e409"), HUGE_VAL);
    EXPECT_EQ(LeadingNumber("100000000000000000000e-330"), 1e-310);
}

struct SplitRow {
    const char* name;
    std::string line;
    std::string delimiter;
    int max;
    bool ok;
    int count;
    NumberRow values;  // the row starts as {-1, -2, -3, -4}
};

// Names the row in test listings instead of dumping its bytes.
void PrintTo(const SplitRow& row, std::ostream* os) {
    *os << row.name;
}

class SplitNumbersRows : public testing::TestWithParam<SplitRow> {};

TEST_P(SplitNumbersRows, SplitsAsTheReaderDoes) {
    const SplitRow& row = GetParam();
    NumberRow values = {-1, -2, -3, -4};
    int count = -1;
    EXPECT_EQ(SplitNumbers(row.line, row.delimiter, row.max, count, values), row.ok);
    EXPECT_EQ(count, row.count);
    EXPECT_EQ(values, row.values);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, SplitNumbersRows,
    testing::Values(
        SplitRow{"DataLine",
                 "   1.2500000E+00,  -2.5000000E-01,   0.000E+00,   1.000E+00",
                 ",",
                 3,
                 true,
                 4,
                 {1.25, -0.25, 0, 1}},
        SplitRow{
            "ParameterLine", "    256    ,  5.000E+00 ,   5.0", ",", 3, true, 3, {256, 5, 5, -4}},
        SplitRow{"StopsAfterMaxPlusOne", "1,2,3,4", ",", 1, true, 2, {1, 2, -3, -4}},
        SplitRow{"StopsWhenTheRowIsFull", "1,2,3,4,5,6", ",", 5, true, 4, {1, 2, 3, 4}},
        SplitRow{"ShortLineKeepsOldValues", "7,8", ",", 3, true, 2, {7, 8, -3, -4}},
        SplitRow{"BlankLine", "    ", ",", 3, false, 0, {-1, -2, -3, -4}},
        SplitRow{"EmptyLine", "", ",", 3, false, 0, {-1, -2, -3, -4}},
        SplitRow{"SpaceDelimiter", "  1.5   2.5 3.5", " ", 3, true, 3, {1.5, 2.5, 3.5, -4}},
        SplitRow{"EmptyDelimiterMeansSpace", "1.5 2.5", "", 3, true, 2, {1.5, 2.5, -3, -4}},
        SplitRow{"EmptyFieldReadsZero", "1,,3", ",", 3, true, 3, {1, 0, 3, -4}},
        SplitRow{"TextReadsZero", "t,9", ",", 3, true, 2, {0, 9, -3, -4}},
        SplitRow{"TrailingDelimiter", "1,2,", ",", 3, true, 2, {1, 2, -3, -4}},
        SplitRow{"SpaceInsideAField", "1 x,2", ",", 3, true, 2, {1, 2, -3, -4}},
        SplitRow{"SemicolonDelimiter", "1;2 ; 3", ";", 3, true, 3, {1, 2, 3, -4}},
        SplitRow{"LongerDelimiter", "1::2::3", "::", 3, true, 3, {1, 2, 3, -4}},
        SplitRow{"NoDelimiterInLine", "1 2 3", ",", 3, true, 1, {1, -2, -3, -4}}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace lapdesk
