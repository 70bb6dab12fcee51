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

TEST(ReplaceSynonyms, FollowsTableOrder) {
    const struct {
        const char* text;
        const char* replaced;
    } rows[] = {
        {"a=<b", "a.LE.b"},  // never a.EQ.<b
        {"a<=b", "a.LE.b"},
        {"a=>b", "a.GE.b"},  // never a.EQ.>b
        {"a>=b", "a.GE.b"},
        {"a<>b", "a.NE.b"},
        {"a><b", "a.NE.b"},
        {"a!=b", "a.NE.b"},
        {"a<b", "a.LT.b"},
        {"a>b", "a.GT.b"},
        {"a=b", "a.EQ.b"},
        {"a And b", "a.And.b"},
        {"a and b", "a.And.b"},
        {"a & b", "a.And.b"},
        {"a Or b", "a.Or.b"},
        {"a ~ b", "a.Or.b"},
        {"Not a", ".Not.a"},
        {"! a", ".Not.a"},
        {"x=1 And y<>2", "x.EQ.1.And.y.NE.2"},
        {"s=>3 Or s=1", "s.GE.3.Or.s.EQ.1"},
        {"CanNot a", "CanNot a"},  // "Not " must begin a word
        {"Andy=1", "Andy.EQ.1"},   // " And " needs its blanks
        {"a .LE. b", "a .LE. b"},  // dotted forms pass unchanged
    };
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

TEST_F(ConditionTest, Truths) {
    const struct {
        const char* text;
        std::optional<bool> truth;
    } rows[] = {
        // equality is exact, on both parts
        {"1 .EQ. 1", true},
        {"1 .EQ. 1.0000000000000002", false},
        {"1+5j .EQ. 1", false},
        {"1+5j .NE. 1", true},
        {"1 .NE. 1", false},
        // orderings compare real parts only
        {"1+5j .LT. 2", true},
        {"1+5j .GE. 1", true},
        {"2 .LE. 2", true},
        {"3 .LE. 2", false},
        {"3 .GT. 2", true},
        {"2 .GT. 2", false},
        {"1 .GE. 2", false},
        {"1 .lt. 2", true},
        // a value alone is true when its real part is not 0
        {"0.5j", false},
        {"1+0j", true},
        {"2j", false},
        {"-1", true},
        {"0", false},
        {"x-3", false},
        // relational binds tighter than Not, Not than And, And than Or
        {"3 .GT. 2 .And. 1 .LT. 0", false},
        {"1 .Or. 0 .And. 0", true},
        {"0 .And. 0 .Or. 1", true},
        {".Not. 1 .EQ. 2", true},
        {".Not. 0 .And. 0", false},
        {".Not. .Not. 1", true},
        {"1 .And. .Not. 0", true},
        {"x .EQ. 3 .Or. x .EQ. 4 .And. y .EQ. 0", true},
        // bracketed sub-conditions and bracketed arithmetic
        {"(1 .Or. 0) .And. 0", false},
        {"(1 .LT. 2) .And. (2 .LT. 3)", true},
        {"((x .GT. 2))", true},
        {"(1+2) .EQ. 3", true},
        {"(x+1)*2 .EQ. 8", true},
        {".Not. (1 .LT. 2 .And. 2 .LT. 1)", true},
        // synonyms are replaced first
        {"x=<3", true},
        {"x=>4", false},
        {"x<>3 Or y=2", true},
        {"Not x=3", false},
        {"x>y And y>0", true},
        // failures
        {"", std::nullopt},
        {".EQ. 1", std::nullopt},
        {"1 .EQ.", std::nullopt},
        {"1 .And. .Or. 1", std::nullopt},
        {"q .EQ. 1", std::nullopt},
        {"(1 .EQ. 1", std::nullopt},
        {"1 .EQ. 1)", std::nullopt},
        {"1 2 .EQ. 1", std::nullopt},
        {"(1 .EQ. 1) (1 .EQ. 1)", std::nullopt},
    };
    for (const auto& row : rows) {
        const std::optional<bool> truth = Truth(row.text);
        ASSERT_EQ(truth.has_value(), row.truth.has_value()) << '"' << row.text << '"';
        if (row.truth) {
            EXPECT_EQ(*truth, *row.truth) << '"' << row.text << '"';
        }
    }
}

TEST_F(ConditionTest, ArithmeticFaultsPropagate) {
    Evaluator evaluator(scope);
    bool truth = false;
    EXPECT_THROW(evaluator.EvalCondition("1/0 .EQ. 1", truth), RuntimeFault);
}

TEST_F(ConditionTest, BooleanGivesOneOrZero) {
    const struct {
        const char* text;
        Outcome expected;
    } rows[] = {
        {"Boolean(1 .LT. 2)", Value(1)},
        {"Boolean(2 .LT. 1)", Value(0)},
        {"Boolean(x = 3)", Value(1)},
        {"Boolean(1+5j < 2)", Value(1)},
        {"Boolean(2j)", Value(0)},
        {"Boolean(x>2)+Boolean(y>1)", Value(2)},
        {"10*Boolean((x .GT. 2) .And. .Not. (y .GT. 2))", Value(10)},
        {"boolean(1)", Value(1)},
        {"Boolean(x .EQ.)", Fails()},
        {"Boolean(q)", Fails()},
    };
    for (const auto& row : rows) {
        EXPECT_TRUE(Matches(Evaluate(row.text, scope), row.expected)) << row.text;
    }
    const Evaluation fault = Evaluate("Boolean(1/0 .EQ. 1)", scope);
    EXPECT_FALSE(fault.ok);
    EXPECT_EQ(fault.fault, FaultCode::DivisionByZero);
}

}  // namespace
}  // namespace lapdesk
