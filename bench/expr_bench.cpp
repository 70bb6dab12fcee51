// Expression evaluations per second. The evaluator reads the text again at
// every evaluation (no compiled form), so these figures are what a program
// loop or the transform's sampling pays per expression.
#include <benchmark/benchmark.h>

#include <string>
#include <string_view>

#include "expr/evaluator.h"
#include "expr/plain_scope.h"
#include "expr/vocabulary.h"

namespace lapdesk {
namespace {

void EvaluateRepeatedly(benchmark::State& state, std::string_view text) {
    InitVocabulary();
    PlainScope scope;
    scope.SetScalar("x", {1.25, 0.5});
    for (auto _ : state) {
        Evaluation result = Evaluate(text, scope);
        benchmark::DoNotOptimize(result);
        if (!result.ok) {
            state.SkipWithError("the expression did not evaluate");
            break;
        }
    }
    state.SetItemsProcessed(state.iterations());
    state.SetLabel(std::string(text));
}

void LiteralSum(benchmark::State& state) {
    EvaluateRepeatedly(state, "1+2.5+3E-1+4j-5+6.25");
}

void Polynomial(benchmark::State& state) {
    EvaluateRepeatedly(state, "3*x^3 - 2*x^2 + 0.5*x - 7");
}

void NestedCalls(benchmark::State& state) {
    EvaluateRepeatedly(state, "Sqrt(Sin(x)^2+Cos(x)^2)");
}

void Condition(benchmark::State& state) {
    EvaluateRepeatedly(state, "Boolean(x*x .LT. 10 .And. Real(x) > 0 Or x = 1)");
}

void ConditionOnly(benchmark::State& state) {
    InitVocabulary();
    PlainScope scope;
    scope.SetScalar("x", {1.25, 0.5});
    Evaluator evaluator(scope);
    const std::string_view text = "x*x .LT. 10 .And. Real(x) > 0 Or x = 1";
    for (auto _ : state) {
        bool truth = false;
        benchmark::DoNotOptimize(evaluator.EvalCondition(text, truth));
        benchmark::DoNotOptimize(truth);
    }
    state.SetItemsProcessed(state.iterations());
    state.SetLabel(std::string(text));
}

BENCHMARK(LiteralSum);
BENCHMARK(Polynomial);
BENCHMARK(NestedCalls);
BENCHMARK(Condition);
BENCHMARK(ConditionOnly);

}  // namespace
}  // namespace lapdesk
