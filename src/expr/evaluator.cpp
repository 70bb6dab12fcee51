#include "expr/evaluator.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "expr/nesting_guard.h"
#include "expr/scan_cache.h"
#include "expr/text_scan.h"
#include "expr/vocabulary.h"
#include "values/builtins.h"
#include "values/number_text.h"

namespace lapdesk {

namespace {

// The depth of one expression is bounded well below the guard's own limit,
// so scanning a text (each bracket level scans its own part) stays cheap.
constexpr std::size_t kMaxBracketDepth = 256;
constexpr std::string_view kTooDeep = "式の入れ子が深すぎます";
constexpr std::string_view kBrackets = "括弧が対応していません";

}  // namespace

// Makes `memo` the one that argument evaluations of this primary record into
// and read from, for as long as the primary is being tried.
class Evaluator::MemoScope {
  public:
    MemoScope(Evaluator& evaluator, ArgumentMemo& memo)
        : evaluator_(evaluator), outer_(evaluator.memo_) {
        evaluator.memo_ = &memo;
    }
    ~MemoScope() { evaluator_.memo_ = outer_; }
    MemoScope(const MemoScope&) = delete;
    MemoScope& operator=(const MemoScope&) = delete;

  private:
    Evaluator& evaluator_;
    ArgumentMemo* outer_;
};

const Evaluator::ArgumentMemo::Entry* Evaluator::ArgumentMemo::Find(std::string_view text) const {
    for (const Entry& entry : entries) {
        if (entry.text == text) return &entry;
    }
    return nullptr;
}

// The memo's outcome for `key` when the primary being tried has one;
// otherwise evaluate(result), recorded under `key`. `value` is set only on
// success.
template <typename Evaluate>
bool Evaluator::Remembered(std::string_view key, Complex& value, Evaluate evaluate) {
    // Read before evaluating: a nested primary installs its own memo and
    // restores this one when it is done.
    ArgumentMemo* memo = memo_;
    if (memo != nullptr) {
        if (const ArgumentMemo::Entry* known = memo->Find(key)) {
            if (known->ok) value = known->value;
            return known->ok;
        }
    }
    Complex result;
    const bool ok = evaluate(result);
    if (ok) value = result;
    if (memo != nullptr) memo->entries.push_back({std::string(key), ok, ok ? result : Complex{}});
    return ok;
}

bool Evaluator::EvalArgument(std::string_view text, Complex& value) {
    text = Trim(text);
    return Remembered(text, value, [&](Complex& result) {
        std::string_view rest = text;
        return EvalSum(rest, result);
    });
}

bool Evaluator::EvalArgument(const SubscriptScan& subscript, Complex& value) {
    return Remembered(subscript.text, value,
                      [&](Complex& result) { return EvalSum(subscript.scan.Get(), result); });
}

bool Evaluator::Fail(std::string reason) {
    if (failure_.empty()) failure_ = std::move(reason);
    return false;
}

// A text's kept scan, or a fresh one, evaluated.
bool Evaluator::EvalSum(std::string_view& text, Complex& value) {
    ScanCache& cache = scope_.Scans();
    const ScanCache::Evaluating evaluating(cache);
    std::optional<SumScan> fresh;
    if (!EvalSum(cache.Sum(text, fresh), value)) return false;
    text = {};
    return true;
}

// sum -> [+|-] term { (+|-) term }, by the sum's compiled steps.
bool Evaluator::EvalSum(const SumScan& scan, Complex& value) {
    NestingGuard guard;
    if (scan.bracketDepth > kMaxBracketDepth || !guard.Admits(scan.bracketDepth)) {
        return Fail(std::string(kTooDeep));
    }
    const SumCode& code = scan.code.Get(scan);
    if (code.stackDepth <= OperandStack::kInPlace) {
        OperandStack stack;
        return RunSumCode(code, stack.items, value);
    }
    std::vector<Complex> stack(code.stackDepth);
    return RunSumCode(code, stack.data(), value);
}

// A plain name's value: from its kept place when the names are as they
// were (NameScope::ReadKnown), otherwise asked of the scope.
inline bool Evaluator::ReadName(const PrimaryScan& primary, Complex& value) {
    return scope_.ReadKnown(primary.place, value) || ReadNameSlowly(primary, value);
}

// One pass over the steps; a step that fails ends the sum.
bool Evaluator::RunSumCode(const SumCode& code, Complex* stack, Complex& value) {
    // Each step ends with a jump of its own to the next step's code, which
    // the processor predicts far better than the one jump of a switch shared
    // by every step. Label addresses are a GCC and Clang extension. The
    // table is in the order of SumStep::Kind.
    // clang-format off
    static void* const kCode[] = {
        &&add,        &&subtract,        &&multiply,        &&divide,        &&power,
        &&addName,    &&subtractName,    &&multiplyName,    &&divideName,    &&powerName,
        &&addLiteral, &&subtractLiteral, &&multiplyLiteral, &&divideLiteral, &&powerLiteral,
        &&negate,     &&literal,         &&name,            &&primary,       &&fail,
        &&failBrackets, &&done};
    // clang-format on
    using Kind = SumStep::Kind;
    static_assert(std::size(kCode) == static_cast<std::size_t>(Kind::Done) + 1);
    using Operator = Complex (*)(const Complex&, const Complex&);

    scope_.PollStop(code.polls);
    std::size_t top = 0;
    const SumStep* step = code.steps.data();
    const auto codeOfStep = [&] { return kCode[static_cast<std::size_t>(step->kind)]; };
    const auto next = [&] {
        if (step->plusZero) {
            // 0 + x as the operator adds it; a value is finite, so the sum
            // needs no overflow check.
            stack[top - 1] = {0.0 + stack[top - 1].Re, 0.0 + stack[top - 1].Im};
        }
        ++step;
        return codeOfStep();
    };
    const auto apply = [&](Operator op, const Complex& operand) {
        stack[top - 1] = op(stack[top - 1], operand);
        return next();
    };
    const auto pop = [&](Operator op) {
        --top;
        return apply(op, stack[top]);
    };
    // A name that cannot be read has its reason already: the sum fails.
    const auto applyName = [&](Operator op) {
        Complex right;
        if (!ReadName(*step->primary, right)) return kCode[static_cast<std::size_t>(Kind::Fail)];
        return apply(op, right);
    };

    goto* codeOfStep();
add:
    goto* pop(CplAdd);
subtract:
    goto* pop(CplSub);
multiply:
    goto* pop(CplMul);
divide:
    goto* pop(CplDiv);
power:
    goto* pop(CplPow);
addName:
    goto* applyName(CplAdd);
subtractName:
    goto* applyName(CplSub);
multiplyName:
    goto* applyName(CplMul);
divideName:
    goto* applyName(CplDiv);
powerName:
    goto* applyName(CplPow);
addLiteral:
    goto* apply(CplAdd, step->literal);
subtractLiteral:
    goto* apply(CplSub, step->literal);
multiplyLiteral:
    goto* apply(CplMul, step->literal);
divideLiteral:
    goto* apply(CplDiv, step->literal);
powerLiteral:
    goto* apply(CplPow, step->literal);
negate:
    stack[top - 1] = CplSub(Complex{}, stack[top - 1]);
    goto* next();
literal:
    stack[top++] = step->literal;
    goto* next();
name:
    if (!ReadName(*step->primary, stack[top])) return false;
    ++top;
    goto* next();
primary:
    if (!EvalScannedPrimary(*step->primary, stack[top])) return false;
    ++top;
    goto* next();
fail:
    return false;
failBrackets:
    return Fail(std::string(kBrackets));
done:
    value = stack[0];
    return true;
}

bool Evaluator::ReadNameSlowly(const PrimaryScan& primary, Complex& value) {
    if (scope_.ReadVariable(*this, primary.name.name, primary.subscripts, primary.place, value)) {
        return true;
    }
    return FailUnknownName(primary.name);
}

// primary -> function call | matrix call | user call | literal | name | ( sum )
bool Evaluator::EvalScannedPrimary(const PrimaryScan& scan, Complex& value) {
    if (scan.text.empty()) return false;
    scope_.PollStop();
    ArgumentMemo memo;
    MemoScope memoScope(*this, memo);
    if (scan.scalarCall) return EvalScalarFunction(*scan.scalarCall, value);
    if (scan.matrixCall) return EvalMatrixFunction(*scan.matrixCall, value);
    if (scan.mayCallUser && scope_.CallUserFunction(*this, scan.text, value)) return true;
    if (scan.literal) {
        value = *scan.literal;
        return true;
    }
    if (EvalNamed(scan, value)) return true;
    if (scan.bracketed) return EvalSum(scan.bracketed->Get(), value);
    return false;
}

bool Evaluator::EvalScalarFunction(const FunctionCallScan& call, Complex& value) {
    const ScalarFunction& function = GetVocabulary().scalarFunctions[call.row];
    if (!call.bracketsClose || !call.argumentsSplit) return Fail(std::string(kBrackets));
    const int count = static_cast<int>(call.arguments.size());
    if (count < function.minArguments || count > function.maxArguments) {
        return Fail(function.name + ") の引数の数が違います");
    }
    if (!function.code) {
        bool truth = false;
        if (!EvalCondition(call.arguments[0], truth)) return false;
        value = {truth ? 1.0 : 0.0, 0.0};
        return true;
    }
    std::vector<Complex> args(call.arguments.size());
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (!EvalSum(call.argumentScans[i].Get(), args[i])) return false;
    }
    return CallScalarFunction(*function.code, args, value);
}

bool Evaluator::EvalMatrixFunction(const FunctionCallScan& call, Complex& value) {
    if (!call.bracketsClose) return Fail(std::string(kBrackets));
    if (!call.argumentsSplit) return false;
    return scope_.CallMatrixFunction(call.row, call.arguments, value);
}

// A named constant, or a variable or array element of the scope.
bool Evaluator::EvalNamed(const PrimaryScan& scan, Complex& value) {
    if (scan.mayBeConstant) {
        if (const auto constant = ConstantValue(scan.text)) {
            value = *constant;
            return true;
        }
    }
    if (!scan.isName) return false;
    const NameWithSubscripts& target = scan.name;
    if (scope_.ReadVariable(*this, target.name, scan.subscripts, scan.place, value)) return true;
    return FailUnknownName(target);
}

// A name the scope could not read: a plain one is unknown, and says so (with
// the constant meant, for a usual spelling such as pi); an element's failure
// has its reason already.
bool Evaluator::FailUnknownName(const NameWithSubscripts& target) {
    if (!target.subscripts.empty()) return false;
    std::string reason = "「" + std::string(target.name) + "」は定義されていません";
    if (const auto hint = UnknownNameHint(target.name)) reason += *hint;
    return Fail(std::move(reason));
}

Evaluation Evaluate(std::string_view text, NameScope& scope) {
    Evaluation result;
    Evaluator evaluator(scope);
    try {
        result.ok = evaluator.EvalSum(text, result.value);
        if (!result.ok) {
            result.message =
                evaluator.failure().empty() ? "式が正しくありません" : evaluator.failure();
        }
    } catch (const RuntimeFault& fault) {
        result.ok = false;
        result.fault = fault.code();
        result.message = fault.description();
    }
    return result;
}

}  // namespace lapdesk
