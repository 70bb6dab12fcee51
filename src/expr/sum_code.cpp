#include "expr/sum_code.h"

#include <algorithm>
#include <string_view>

#include "expr/expression_scan.h"

namespace lapdesk {

namespace {

class Compiler {
  public:
    // sum -> [+|-] term { (+|-) term }
    void Sum(const SumScan& scan) {
        if (scan.sum.empty) {
            FailOperand();
            return;
        }
        for (std::size_t t = 0; t < scan.sum.count; ++t) {
            Chain(
                scan, scan.terms[t], [&](std::size_t f) { Factor(scan, f); },
                [&](std::size_t f) { return scan.factors[f].op; });
            if (t == 0) {
                Sign(scan.terms[t].op);
            } else {
                Apply(scan.terms[t].op);
            }
        }
        if (scan.sum.unbalancedAfter) Emit(SumStep::Kind::FailBrackets);
    }

    SumCode Take() {
        Emit(SumStep::Kind::Done);
        code_.stackDepth = depth_;
        return std::move(code_);
    }

  private:
    // term -> factor { (*|/) factor }, factor -> primary { ^ primary }: the
    // operands of `chain` in order, each after the first applied with the
    // operator before it.
    template <typename Operand, typename OperatorOf>
    void Chain(const SumScan&, const SumScan::Operand& chain, Operand operand, OperatorOf op) {
        if (chain.empty) {
            FailOperand();
            return;
        }
        for (std::size_t k = chain.first; k < chain.first + chain.count; ++k) {
            operand(k);
            if (k != chain.first) Apply(op(k));
        }
        if (chain.unbalancedAfter) Emit(SumStep::Kind::FailBrackets);
    }

    void Factor(const SumScan& scan, std::size_t f) {
        Chain(
            scan, scan.factors[f], [&](std::size_t p) { Primary(scan.primaries[p]); },
            [&](std::size_t p) { return scan.primaryOps[p]; });
    }

    // The kinds of primary tried in the evaluator's order: a call first,
    // then a number, a named constant, a name, a bracket.
    void Primary(const PrimaryScan& primary) {
        if (primary.text.empty()) {
            FailOperand();
            return;
        }
        const bool call = primary.scalarCall || primary.matrixCall || primary.mayCallUser;
        if (!call && primary.literal) {
            SumStep step = Step(SumStep::Kind::Literal);
            step.literal = *primary.literal;
            Push(step);
            ++code_.polls;
            return;
        }
        if (!call && !primary.mayBeConstant && primary.isName && primary.name.subscripts.empty()) {
            SumStep step = Step(SumStep::Kind::Name);
            step.primary = &primary;
            Push(step);
            ++code_.polls;
            return;
        }
        if (!call && !primary.mayBeConstant && !primary.isName && primary.bracketed) {
            ++code_.polls;
            Sum(primary.bracketed->Get());
            return;
        }
        SumStep step = Step(SumStep::Kind::Primary);
        step.primary = &primary;
        Push(step);
    }

    // A first term's sign: 0 + x or 0 - x. A number takes it at once;
    // otherwise a plus marks the step that left the term on top, and a
    // minus is a step of its own. After a failing step nothing runs.
    void Sign(char op) {
        SumStep& last = code_.steps.back();
        if (last.kind == SumStep::Kind::Fail || last.kind == SumStep::Kind::FailBrackets) return;
        if (last.kind == SumStep::Kind::Literal) {
            Complex value;
            ApplyOperator(op, value, last.literal);
            last.literal = value;
            return;
        }
        if (op == '+') {
            last.plusZero = true;
            return;
        }
        Emit(SumStep::Kind::Negate);
    }

    static SumStep Step(SumStep::Kind kind) {
        SumStep step;
        step.kind = kind;
        return step;
    }
    void Emit(SumStep::Kind kind) { code_.steps.push_back(Step(kind)); }
    // An empty operand fails where its value would be pushed; it counts as
    // pushed, so that the operators after it keep the count of operands.
    void FailOperand() {
        Emit(SumStep::Kind::Fail);
        Pushed();
    }
    void Pushed() { depth_ = std::max(depth_, ++stack_); }
    void Push(const SumStep& step) {
        code_.steps.push_back(step);
        Pushed();
    }
    // A number or plain name just pushed as the right operand becomes the
    // operator's own operand, read where the operator applies it.
    void Apply(char op) {
        --stack_;
        SumStep& last = code_.steps.back();
        const bool literal = last.kind == SumStep::Kind::Literal;
        if (!last.plusZero && (literal || last.kind == SumStep::Kind::Name)) {
            last.kind =
                OperatorKind(op, literal ? SumStep::Kind::AddLiteral : SumStep::Kind::AddName);
            return;
        }
        Emit(OperatorKind(op, SumStep::Kind::Add));
    }

    // The operator's kind in the group of five that starts at `add`.
    static SumStep::Kind OperatorKind(char op, SumStep::Kind add) {
        const std::string_view operators = "+-*/^";
        const auto offset = static_cast<std::uint8_t>(operators.find(op));
        return static_cast<SumStep::Kind>(static_cast<std::uint8_t>(add) + offset);
    }

    SumCode code_;
    std::size_t stack_ = 0;
    std::size_t depth_ = 0;
};

}  // namespace

SumCode CompileSum(const SumScan& scan) {
    Compiler compiler;
    compiler.Sum(scan);
    return compiler.Take();
}

const SumCode& SumCodeSlot::Get(const SumScan& scan) const {
    if (!code_) code_ = std::make_unique<const SumCode>(CompileSum(scan));
    return *code_;
}

}  // namespace lapdesk
