#include "expr/sum_code.h"

#include <algorithm>

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
                Emit(SumStep::Kind::Sign, scan.terms[t].op);
            } else {
                Apply(scan.terms[t].op);
            }
        }
        if (scan.sum.unbalancedAfter) Emit(SumStep::Kind::FailBrackets);
    }

    SumCode Take() {
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
            code_.steps.push_back(step);
            Pushed();
            return;
        }
        if (!call && !primary.mayBeConstant && primary.isName && primary.name.subscripts.empty()) {
            SumStep step = Step(SumStep::Kind::Name);
            step.primary = &primary;
            code_.steps.push_back(step);
            Pushed();
            return;
        }
        if (!call && !primary.mayBeConstant && !primary.isName && primary.bracketed) {
            Emit(SumStep::Kind::Poll);
            Sum(primary.bracketed->Get());
            return;
        }
        SumStep step = Step(SumStep::Kind::Primary);
        step.primary = &primary;
        code_.steps.push_back(step);
        Pushed();
    }

    static SumStep Step(SumStep::Kind kind, char op = 0) {
        SumStep step;
        step.kind = kind;
        step.op = op;
        return step;
    }
    void Emit(SumStep::Kind kind, char op = 0) { code_.steps.push_back(Step(kind, op)); }
    // An empty operand fails where its value would be pushed; it counts as
    // pushed, so that the operators after it keep the count of operands.
    void FailOperand() {
        Emit(SumStep::Kind::Fail);
        Pushed();
    }
    void Pushed() { depth_ = std::max(depth_, ++stack_); }
    void Apply(char op) {
        Emit(SumStep::Kind::Apply, op);
        --stack_;
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
