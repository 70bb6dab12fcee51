#include "expr/evaluator.h"

#include <algorithm>
#include <vector>

#include "expr/nesting_guard.h"
#include "expr/text_scan.h"
#include "expr/vocabulary.h"
#include "values/builtins.h"
#include "values/number_text.h"

namespace lapdesk {

namespace {

// Every bracket level rescans its text, so the depth of one expression is
// bounded well below the guard's own limit: work stays linear in practice.
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

bool Evaluator::EvalArgument(std::string_view text, Complex& value) {
    text = Trim(text);
    // Read before evaluating: a nested primary installs its own memo and
    // restores this one when it is done.
    ArgumentMemo* memo = memo_;
    if (memo != nullptr) {
        if (const ArgumentMemo::Entry* known = memo->Find(text)) {
            if (known->ok) value = known->value;
            return known->ok;
        }
    }
    std::string_view rest = text;
    const bool ok = EvalSum(rest, value);
    if (memo != nullptr) memo->entries.push_back({std::string(text), ok, ok ? value : Complex{}});
    return ok;
}

bool Evaluator::Fail(std::string reason) {
    if (failure_.empty()) failure_ = std::move(reason);
    return false;
}

// sum -> [+|-] term { (+|-) term }
bool Evaluator::EvalSum(std::string_view& text, Complex& value) {
    NestingGuard guard;
    const std::size_t depth = BracketDepth(text);
    if (depth > kMaxBracketDepth || !guard.Admits(depth)) return Fail(std::string(kTooDeep));
    text = Trim(text);
    if (text.empty()) return false;
    char op = '+';
    if (CharInSet(text.front(), "+-") != 0) {
        op = text.front();
        text.remove_prefix(1);
    }
    Complex acc{};
    for (bool leading = true;; leading = false) {
        // A sign right after a binary "+" or "-" signs the next operand
        // (p=1+-2j); after the leading sign it does not (--3 fails).
        const std::size_t start = std::min(text.find_first_not_of(" \t"), text.size());
        const bool signedOperand =
            !leading && start < text.size() && CharInSet(text[start], "+-") != 0;
        std::string_view operand;
        if (!SplitOperand(text, "+-", operand, signedOperand ? start + 1 : 0)) {
            return Fail(std::string(kBrackets));
        }
        Complex v;
        if (!EvalTerm(operand, v)) return false;
        ApplyOperator(op, acc, v);
        if (text.empty()) break;
        op = text.front();
        text.remove_prefix(1);
    }
    value = acc;
    return true;
}

// term -> factor { (*|/) factor }
bool Evaluator::EvalTerm(std::string_view& text, Complex& value) {
    return EvalChain(text, "*/", false, value);
}

// factor -> primary { ^ primary }, left-associative: 2^3^2 is (2^3)^2
bool Evaluator::EvalFactor(std::string_view& text, Complex& value) {
    return EvalChain(text, "^", true, value);
}

bool Evaluator::EvalChain(std::string_view& text, std::string_view ops, bool factors,
                          Complex& value) {
    text = Trim(text);
    if (text.empty()) return false;
    std::string_view operand;
    if (!SplitOperand(text, ops, operand)) return Fail(std::string(kBrackets));
    Complex acc;
    if (!EvalOperand(operand, factors, acc)) return false;
    while (!text.empty()) {
        const char op = text.front();
        text.remove_prefix(1);
        if (!SplitOperand(text, ops, operand)) return Fail(std::string(kBrackets));
        Complex v;
        if (!EvalOperand(operand, factors, v)) return false;
        ApplyOperator(op, acc, v);
    }
    value = acc;
    return true;
}

bool Evaluator::EvalOperand(std::string_view operand, bool factors, Complex& value) {
    return factors ? EvalPrimary(operand, value) : EvalFactor(operand, value);
}

// primary -> function call | matrix call | user call | literal | name | ( sum )
bool Evaluator::EvalPrimary(std::string_view& text, Complex& value) {
    text = Trim(text);
    if (text.empty()) return false;
    scope_.PollStop();
    ArgumentMemo memo;
    MemoScope memoScope(*this, memo);
    if (text.back() == ')') {
        std::optional<bool> called;
        if (const auto row = FindScalarFunction(text)) {
            called = EvalScalarFunction(*row, text, value);
        } else if (const auto row = FindMatrixFunction(text)) {
            called = EvalMatrixFunction(*row, text, value);
        }
        if (called) {
            if (*called) text = {};
            return *called;
        }
        if (text.front() != '(' && scope_.CallUserFunction(*this, text, value)) {
            text = {};
            return true;
        }
    }
    std::string literal(text);
    if (TextToComplex(literal, value)) {
        text = {};
        return true;
    }
    if (EvalNamed(text, value)) {
        text = {};
        return true;
    }
    if (text.front() == '(' && BracketClosesAtEnd(text, 0)) {
        std::string_view inside = text.substr(1, text.size() - 2);
        if (!EvalSum(inside, value)) return false;
        text = {};
        return true;
    }
    return false;
}

bool Evaluator::EvalScalarFunction(std::size_t row, std::string_view text, Complex& value) {
    const ScalarFunction& function = GetVocabulary().scalarFunctions[row];
    const std::size_t open = function.name.size() - 1;
    if (!BracketClosesAtEnd(text, open)) return Fail(std::string(kBrackets));
    std::vector<std::string_view> pieces;
    const std::string_view inside = text.substr(open + 1, text.size() - open - 2);
    if (!Trim(inside).empty() && !SplitTopLevel(inside, ',', pieces)) {
        return Fail(std::string(kBrackets));
    }
    const int count = static_cast<int>(pieces.size());
    if (count < function.minArguments || count > function.maxArguments) {
        return Fail(function.name + ") の引数の数が違います");
    }
    if (function.code >= kBooleanFunctionCode) {
        bool truth = false;
        if (!EvalCondition(pieces[0], truth)) return false;
        value = {truth ? 1.0 : 0.0, 0.0};
        return true;
    }
    std::vector<Complex> args(pieces.size());
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (!EvalSum(pieces[i], args[i])) return false;
    }
    return CallScalarFunction(function.code, args, value);
}

bool Evaluator::EvalMatrixFunction(std::size_t row, std::string_view text, Complex& value) {
    const MatrixFunction& function = GetVocabulary().matrixFunctions[row];
    const std::size_t open = function.name.size() - 1;
    if (!BracketClosesAtEnd(text, open)) return Fail(std::string(kBrackets));
    std::vector<std::string_view> names;
    if (!SplitTopLevel(text.substr(open + 1, text.size() - open - 2), ',', names)) return false;
    for (std::string_view& name : names)
        name = Trim(name);
    return scope_.CallMatrixFunction(row, names, value);
}

// A named constant, or a variable or array element of the scope.
bool Evaluator::EvalNamed(std::string_view text, Complex& value) {
    if (const auto constant = ConstantValue(text)) {
        value = *constant;
        return true;
    }
    NameWithSubscripts target;
    if (!SplitNameAndSubscripts(text, target)) return false;
    if (scope_.ReadVariable(*this, target.name, target.subscripts, value)) return true;
    if (target.subscripts.empty()) Fail("「" + std::string(target.name) + "」は定義されていません");
    return false;
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
