// Input that no one types on purpose: very deep nesting, very long lines,
// control characters and broken UTF-8. Each must end in a clean failure (or
// a correct value) with a message, never in a crash or a long stall.
#include <gtest/gtest.h>

#include <string>

#include "expect_value.h"
#include "expr/evaluator.h"
#include "expr/plain_scope.h"
#include "expr/vocabulary.h"
#include "values/matrix.h"

namespace lapdesk {
namespace {

std::string Repeat(std::string_view piece, std::size_t times) {
    std::string s;
    s.reserve(piece.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        s += piece;
    return s;
}

std::string Nested(std::string_view open, std::string_view inside, std::size_t depth) {
    return Repeat(open, depth) + std::string(inside) + Repeat(")", depth);
}

constexpr std::size_t kDeep = 100000;
constexpr std::size_t kMegabyte = 1 << 20;

class HostileInput : public ::testing::Test {
  protected:
    HostileInput() {
        InitVocabulary();
        scope.SetScalar("x", {1, 0});
        scope.SetArray("V", ComplexArray::Vector(1));
    }
    Evaluation Eval(const std::string& text) { return Evaluate(text, scope); }
    PlainScope scope;
};

TEST_F(HostileInput, DeepNestingFailsCleanly) {
    const struct {
        const char* name;
        std::string text;
    } rows[] = {{"brackets", Nested("(", "1", kDeep)},
                {"function calls", Nested("Sin(", "0", kDeep)},
                {"subscripts", Nested("V(", "0", kDeep)},
                {"only opening brackets", Repeat("(", kDeep)},
                {"sub-conditions", "Boolean(" + Nested("(", "1 .EQ. 1", kDeep) + ")"},
                {"alternating", Repeat("(1+Sin(", kDeep / 2) + "0" + Repeat("))", kDeep / 2)}};
    for (const auto& row : rows) {
        EXPECT_TRUE(Matches(Eval(row.text), Fails())) << row.name;
    }
}

// Nesting well inside the limit still evaluates.
TEST_F(HostileInput, ModerateNestingStillWorks) {
    const struct {
        const char* name;
        std::string text;
        Outcome expected;
    } rows[] = {{"brackets", Nested("(", "1", 200), Value(1)},
                {"function calls", Nested("Abs(", "-2", 200), Value(2)},
                {"sums", Nested("(1+", "0", 200), Value(200)},
                {"sub-conditions", "Boolean(" + Nested("(", "1 .EQ. 1", 200) + ")", Value(1)},
                {"mixed conditions", "Boolean(" + Nested("(1 .EQ. 1 .And. ", "2 .GT. 1", 200) + ")",
                 Value(1)}};
    for (const auto& row : rows) {
        EXPECT_TRUE(Matches(Eval(row.text), row.expected)) << row.name;
    }
}

// Lines of about a megabyte, each built only when its row runs, evaluate
// in one pass or fail.
TEST_F(HostileInput, MegabyteLines) {
    const struct {
        std::string (*make)();
        Outcome expected;
    } rows[] = {
        {[] { return Repeat("1+", kMegabyte / 2) + "1"; }, Value(kMegabyte / 2 + 1)},
        {[] { return "Boolean(" + Repeat("1 .EQ. 1 .And. ", kMegabyte / 16) + "1)"; }, Value(1)},
        {[] { return Repeat("a", kMegabyte); }, Fails()},
        {[] { return "0." + Repeat("0", kMegabyte) + "1"; }, Value(0)},
        {[] { return Repeat(" ", kMegabyte) + "2"; }, Value(2)},
        {[] { return "Sin(" + Repeat(",", kMegabyte) + ")"; }, Fails()},
        {[] { return Repeat("2^", kMegabyte / 2) + "2"; }, Fails()},
        {[] { return Repeat("2* -", kMegabyte / 4) + "1"; }, Fails()}};
    for (std::size_t k = 0; k < std::size(rows); ++k) {
        EXPECT_TRUE(Matches(Eval(rows[k].make()), rows[k].expected)) << "row " << k;
    }
}

TEST_F(HostileInput, StrayBytesAndBrokenUtf8) {
    using namespace std::string_literals;
    const std::string rows[] = {"\x01",
                                "1\x7f",
                                "1;2",
                                "'1",
                                "1\0002"s,
                                "\r",
                                "1\r+1",
                                "\xff",
                                "\xcf\x80\x80",
                                "\xe2\x82",
                                "Sin(\xff)",
                                "\xef\xbb\xbf\x31",
                                "Boolean(\xff .EQ. 1)",
                                "1\xc2\xa0+1"};
    for (const std::string& text : rows) {
        EXPECT_TRUE(Matches(Eval(text), Fails())) << "bytes of length " << text.size();
    }
}

}  // namespace
}  // namespace lapdesk
