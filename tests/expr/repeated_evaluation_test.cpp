// A text evaluated again is evaluated from what its first scan learnt: the
// value (to the bit), the fault and the message must be those of the first
// evaluation, for valid texts, faulting ones and broken ones alike.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "expr/evaluator.h"
#include "expr/plain_scope.h"
#include "expr/vocabulary.h"
#include "values/matrix.h"

namespace lapdesk {
namespace {

void ExpectSameOutcome(const Evaluation& again, const Evaluation& first, const std::string& what) {
    EXPECT_EQ(again.ok, first.ok) << what;
    EXPECT_EQ(std::memcmp(&again.value, &first.value, sizeof(Complex)), 0) << what;
    EXPECT_EQ(again.fault, first.fault) << what;
    EXPECT_EQ(again.message, first.message) << what;
}

TEST(RepeatedEvaluation, GivesTheFirstOutcomeEveryTime) {
    InitVocabulary();
    PlainScope scope;
    scope.SetScalar("p", {0.5, 2});
    scope.SetScalar("x", {-3, 0.25});
    ComplexArray a = ComplexArray::Vector(3);
    a.At(1) = {7, 1};
    scope.SetArray("A", a);
    const char* const texts[] = {
        "1/(p+1)", " 3 + 4j ", "2^3^2", "1E-3+1", "p=1+-2j", "Sqrt(Sin(x)^2+Cos(x)^2)", "A(1+1)",
        "Abs(-(p))", "Boolean(x .LT. 1 .And. p <> 0)", "1/0", "(1+2)*(3", "2*-x", "y + 1",
        "Sin(1,2)", "A(5)", "MatI1(A) + 0", "",
        // numbers, names and brackets only: steps of their own
        "-0*1", "0*-1", "+(-0*x)", "0-0", "-(x)", "((p+1)*(p-x))", "1E300*1E300", "x/(p-p)",
        "p + q*2", "-x^2+2^-1-x^0.5", "((((1))))+-p"};
    for (const char* text : texts) {
        const Evaluation first = Evaluate(text, scope);
        for (int round = 0; round < 3; ++round)
            ExpectSameOutcome(Evaluate(text, scope), first, text);
    }
}

// An empty operand fails where the evaluation reaches it, however many
// operators follow it.
TEST(RepeatedEvaluation, EmptyOperandsFailWithoutAFault) {
    InitVocabulary();
    PlainScope scope;
    scope.SetScalar("x", {2, 0});
    for (const char* text : {"///.-/", "1//2", "2^", "x*/x-/x", "(1+)*2", "((x^))/x//x"}) {
        const Evaluation result = Evaluate(text, scope);
        EXPECT_FALSE(result.ok) << text;
        EXPECT_FALSE(result.fault) << text;
        EXPECT_FALSE(result.message.empty()) << text;
    }
}

// Variables are read at every evaluation, never taken from the scan.
TEST(RepeatedEvaluation, ReadsTheVariablesAnew) {
    InitVocabulary();
    PlainScope scope;
    for (int k = 0; k < 4; ++k) {
        scope.SetScalar("k", {static_cast<double>(k), 0});
        const Evaluation result = Evaluate("k*k + 1", scope);
        ASSERT_TRUE(result.ok);
        EXPECT_EQ(result.value, (Complex{k * k + 1.0, 0}));
    }
}

}  // namespace
}  // namespace lapdesk
