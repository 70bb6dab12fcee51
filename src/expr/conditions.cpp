#include "expr/conditions.h"

#include <optional>
#include <vector>

#include "expr/condition_scan.h"
#include "expr/evaluator.h"
#include "expr/nesting_guard.h"
#include "expr/scan_cache.h"
#include "expr/text_scan.h"
#include "expr/vocabulary.h"

namespace lapdesk {

namespace {

bool IsWordChar(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Binding strength; relational operators bind tightest, ".Or." loosest.
int Priority(std::string_view op) {
    if (SameWord(op, ".Or.")) return 1;
    if (SameWord(op, ".And.")) return 2;
    if (SameWord(op, ".Not.")) return 3;
    return 4;
}

struct Operand {
    Complex value;
    bool truth;
};

Operand FromTruth(bool truth) {
    return {{truth ? 1.0 : 0.0, 0.0}, truth};
}

// Pops the operands of `op` and pushes its result; false when they are missing.
bool Apply(std::string_view op, std::vector<Operand>& operands) {
    if (SameWord(op, ".Not.")) {
        if (operands.empty()) return false;
        operands.back() = FromTruth(!operands.back().truth);
        return true;
    }
    if (operands.size() < 2) return false;
    const Operand b = operands.back();
    operands.pop_back();
    const Operand a = operands.back();
    bool truth = false;
    if (SameWord(op, ".And.")) {
        truth = a.truth && b.truth;
    } else if (SameWord(op, ".Or.")) {
        truth = a.truth || b.truth;
    } else {
        // Equality compares both parts exactly; orderings only real parts.
        const Complex d = CplSub(a.value, b.value);
        if (SameWord(op, ".EQ.")) truth = d.Re == 0.0 && d.Im == 0.0;
        if (SameWord(op, ".NE.")) truth = d.Re != 0.0 || d.Im != 0.0;
        if (SameWord(op, ".LT.")) truth = d.Re < 0.0;
        if (SameWord(op, ".LE.")) truth = d.Re <= 0.0;
        if (SameWord(op, ".GT.")) truth = d.Re > 0.0;
        if (SameWord(op, ".GE.")) truth = d.Re >= 0.0;
    }
    operands.back() = FromTruth(truth);
    return true;
}

constexpr std::string_view kTop = "@Top@";

}  // namespace

std::string ReplaceSynonyms(std::string_view condition) {
    std::string s(condition);
    for (const OperatorSynonym& row : GetVocabulary().operatorSynonyms) {
        const bool word = IsLetter(row.synonym.front());
        std::string out;
        std::size_t i = 0;
        while (i < s.size()) {
            const bool boundary = !word || i == 0 || !IsWordChar(s[i - 1]);
            if (boundary && StartsWithWord(std::string_view(s).substr(i), row.synonym)) {
                out += row.canonical;
                i += row.synonym.size();
            } else {
                out += s[i++];
            }
        }
        s = std::move(out);
    }
    return s;
}

// condition -> operand { op operand } with ".Not." as a prefix; operators
// wait on a stack above the "@Top@" marker until a weaker one arrives.
bool Evaluator::EvalCondition(std::string_view text, bool& truth) {
    ScanCache& cache = scope_.Scans();
    const ScanCache::Evaluating evaluating(cache);
    std::optional<ConditionScan> fresh;
    return EvalCondition(cache.Condition(text, fresh), truth);
}

bool Evaluator::EvalCondition(const ConditionScan& scan, bool& truth) {
    NestingGuard guard;
    if (!guard.Admits(scan.bracketDepth)) return Fail("式の入れ子が深すぎます");
    if (!scan.bracketsBalance) return Fail("括弧が対応していません");
    std::vector<std::string_view> ops{kTop};
    std::vector<Operand> operands;
    bool expectOperand = true;
    for (const ConditionToken& token : scan.tokens) {
        if (!token.isOperator) {
            if (!expectOperand) return false;
            Operand operand{};
            const std::string failureBefore = failure_;
            Complex value;
            if (EvalSum(token.operand->Get(), value)) {
                operand.value = value;
            } else {
                // A bracketed operand that is no expression is a condition.
                if (token.inside.size() == token.text.size()) return false;
                failure_ = failureBefore;
                bool inner = false;
                if (!EvalCondition(token.inside, inner)) return false;
                operand.value = {inner ? 1.0 : 0.0, 0.0};
            }
            operand.truth = operand.value.Re != 0.0;
            operands.push_back(operand);
            expectOperand = false;
        } else if (SameWord(token.text, ".Not.")) {
            if (!expectOperand) return false;
            ops.push_back(token.text);
        } else {
            if (expectOperand) return false;
            while (ops.back() != kTop && Priority(ops.back()) >= Priority(token.text)) {
                if (!Apply(ops.back(), operands)) return false;
                ops.pop_back();
            }
            ops.push_back(token.text);
            expectOperand = true;
        }
    }
    if (expectOperand) return false;
    while (ops.back() != kTop) {
        if (!Apply(ops.back(), operands)) return false;
        ops.pop_back();
    }
    if (operands.size() != 1) return false;
    truth = operands.back().truth;
    return true;
}

}  // namespace lapdesk
