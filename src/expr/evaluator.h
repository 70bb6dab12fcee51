// Evaluates the calculator language's expressions and conditions directly on
// their text by recursive descent: sums, terms, powers (left-associative),
// primaries. Names resolve through a NameScope.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "expr/condition_scan.h"
#include "expr/expression_scan.h"
#include "expr/name_scope.h"
#include "values/complex.h"
#include "values/fault.h"

namespace lapdesk {

class Evaluator {
  public:
    explicit Evaluator(NameScope& scope) : scope_(scope) {}

    // Consumes the text from the left and leaves it empty on success.
    // Syntax faults return false (see failure()); arithmetic faults raise
    // RuntimeFault, which the caller's boundary traps.
    bool EvalSum(std::string_view& text, Complex& value);
    // A text by its scan (expression_scan.h): one the caller keeps for it
    // (a KeptScan), which is not in the scope's store, or a part of one.
    // Evaluated by its compiled steps (sum_code.h); `value` is set only on
    // success.
    bool EvalSum(const SumScan& scan, Complex& value);

    // A condition of dotted operators and their synonyms; truth in `truth`.
    bool EvalCondition(std::string_view text, bool& truth);
    // A condition by the scan its caller keeps for it (a KeptScan).
    bool EvalCondition(const ConditionScan& scan, bool& truth);

    NameScope& scope() { return scope_; }

    // Evaluates one argument of a user-function call or one subscript of an
    // array element. A primary Name(a, b) is tried as a call first and then,
    // if the call fails, as an array element with the same texts: the values
    // (or failures) of the call's arguments are reused for the subscripts, so
    // that nested primaries cost linear, not exponential, work.
    bool EvalArgument(std::string_view text, Complex& value);
    // The same for a subscript by its scan.
    bool EvalArgument(const SubscriptScan& subscript, Complex& value);

    // Why the last evaluation failed, for the user's message; empty when the
    // reason is only "not a valid expression".
    const std::string& failure() const { return failure_; }

  private:
    // What the arguments of the primary being tried evaluated to.
    struct ArgumentMemo {
        struct Entry {
            std::string text;  // a copy: the call's argument texts do not outlive it
            bool ok;
            Complex value;
        };
        std::vector<Entry> entries;
        const Entry* Find(std::string_view text) const;
    };
    class MemoScope;
    // The operands of a sum's steps, left unset: most sums need a few.
    struct OperandStack {
        static constexpr std::size_t kInPlace = 16;
        OperandStack() {}
        union {
            Complex items[kInPlace];
        };
    };

    template <typename Evaluate>
    bool Remembered(std::string_view key, Complex& value, Evaluate evaluate);
    bool Fail(std::string reason);
    bool RunSumCode(const SumCode& code, Complex* stack, Complex& value);
    bool ReadName(const PrimaryScan& primary, Complex& value);
    bool ReadNameSlowly(const PrimaryScan& primary, Complex& value);
    bool EvalScannedPrimary(const PrimaryScan& scan, Complex& value);
    bool EvalScalarFunction(const FunctionCallScan& call, Complex& value);
    bool EvalMatrixFunction(const FunctionCallScan& call, Complex& value);
    bool EvalNamed(const PrimaryScan& scan, Complex& value);
    bool FailUnknownName(const NameWithSubscripts& target);

    NameScope& scope_;
    std::string failure_;
    ArgumentMemo* memo_ = nullptr;  // of the innermost primary Name(...) being tried
};

// The outcome of evaluating one whole expression with faults trapped.
struct Evaluation {
    bool ok = false;
    Complex value;
    std::optional<FaultCode> fault;  // set when an arithmetic fault ended it
    std::string message;             // why it failed, for the user
};

Evaluation Evaluate(std::string_view text, NameScope& scope);

}  // namespace lapdesk
