// Conditions: synonym replacement, relational and logical operators, their
// priorities, bracketed sub-conditions and the Boolean() function.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "expect_value.h"
#include "expr/conditions.h"
#include "expr/evaluator.h"
#include "expr/plain_scope.h"
#include "expr/vocabulary.h"

namespace lapdesk {
namespace {

// Two-character synonyms are replaced before the one-character ones, and
// word synonyms only where their blanks make them words.
TEST(ReplaceSynonyms, FollowsTableOrder) {
    const struct {
        const char* text;
        const char* replaced;
    } rows[] = {
        {"a=<b", "a.LE.b"},       {"a<=b", "a.LE.b"},      {"a=>b", "a.GE.b"},
        {"a><b", "a.NE.b"},       {"a!=b", "a.NE.b"},      {"a<b", "a.LT.b"},
        {"a=b", "a.EQ.b"},        {"a and b", "a.And.b"},  {"a & b", "a.And.b"},
        {"a ~ b", "a.Or.b"},      {"! a", ".Not.a"},       {"x=1 And y<>2", "x.EQ.1.And.y.NE.2"},
        {"CanNot a", "CanNot a"}, {"Andy=1", "Andy.EQ.1"}, {"a .LE. b", "a .LE. b"}};
    for (const auto& row : rows) {
        EXPECT_EQ(ReplaceSynonyms(row.text), row.replaced) << row.text;
    }
}

// x = 3, y = 2.
class ConditionTest : public ::testing::Test {
  protected:
    ConditionTest() {
        InitVocabulary();
        scope.SetScalar("x", {3, 0});
        scope.SetScalar("y", {2, 0});
    }

    // The truth of the condition, or nothing when it does not evaluate.
    std::optional<bool> Truth(const char* text) {
        Evaluator evaluator(scope);
        bool truth = false;
        if (!evaluator.EvalCondition(text, truth)) return std::nullopt;
        return truth;
    }

    PlainScope scope;
};

// Equality is exact on both parts; orderings compare real parts; a value
// alone is true when its real part is not 0; relational operators bind
// tighter than Not, Not than And, And than Or.
TEST_F(ConditionTest, Truths) {
    const char* const trueConditions[] = {"1 .EQ. 1",
                                          "1+5j .NE. 1",
                                          "1+5j .LT. 2",
                                          "2 .LE. 2",
                                          "1 .lt. 2",
                                          "1+0j",
                                          "1 .Or. 0 .And. 0",
                                          ".Not. 1 .EQ. 2",
                                          ".Not. .Not. 1",
                                          "x .EQ. 3 .Or. x .EQ. 4 .And. y .EQ. 0",
                                          "(1 .LT. 2) .And. (2 .LT. 3)",
                                          "(x+1)*2 .EQ. 8",
                                          ".Not. (1 .LT. 2 .And. 2 .LT. 1)",
                                          "x=<3",
                                          "x<>3 Or y=2",
                                          "x>y And y>0"};
    const char* const falseConditions[] = {
        "1 .EQ. 1.0000000000000002", "1+5j .EQ. 1",     "3 .LE. 2", "2 .GT. 2", "0.5j", "x-3",
        "3 .GT. 2 .And. 1 .LT. 0",   ".Not. 0 .And. 0", "x=>4",     "Not x=3"};
    const char* const failing[] = {
        "",          ".EQ. 1",    "1 .EQ.",     "1 .And. .Or. 1",       "q .EQ. 1",
        "(1 .EQ. 1", "1 .EQ. 1)", "1 2 .EQ. 1", "(1 .EQ. 1) (1 .EQ. 1)"};
    for (const char* text : trueConditions)
        EXPECT_EQ(Truth(text), std::optional<bool>(true)) << '"' << text << '"';
    for (const char* text : falseConditions)
        EXPECT_EQ(Truth(text), std::optional<bool>(false)) << '"' << text << '"';
    for (const char* text : failing)
        EXPECT_EQ(Truth(text), std::nullopt) << '"' << text << '"';
}

TEST_F(ConditionTest, BooleanGivesOneOrZero) {
    const struct {
        const char* text;
        double value;
    } rows[] = {{"Boolean(2 .LT. 1)", 0},
                {"Boolean(1+5j < 2)", 1},
                {"Boolean(2j)", 0},
                {"Boolean(x>2)+Boolean(y>1)", 2},
                {"10*Boolean((x .GT. 2) .And. .Not. (y .GT. 2))", 10},
                {"boolean(1)", 1}};
    for (const auto& row : rows) {
        EXPECT_TRUE(Matches(Evaluate(row.text, scope), Value(row.value))) << row.text;
    }
    EXPECT_TRUE(Matches(Evaluate("Boolean(x .EQ.)", scope), Fails()));
    const Evaluation fault = Evaluate("Boolean(1/0 .EQ. 1)", scope);
    EXPECT_FALSE(fault.ok);
    EXPECT_EQ(fault.fault, FaultCode::DivisionByZero);
}

}  // namespace
}  // namespace lapdesk
