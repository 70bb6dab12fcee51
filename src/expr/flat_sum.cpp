#include "expr/flat_sum.h"

#include <algorithm>

#include "expr/expression_scan.h"

namespace lapdesk {

namespace {

class Flattener {
  public:
    bool Sum(const SumScan& scan) {
        if (scan.sum.empty || scan.sum.unbalancedAfter) return false;
        for (std::size_t t = 0; t < scan.sum.count; ++t) {
            if (!Term(scan, scan.terms[t])) return false;
            if (t == 0) {
                Emit(Step(FlatStep::Kind::Sign, scan.terms[t].op));
            } else {
                Apply(scan.terms[t].op);
            }
        }
        return true;
    }

    bool fits() const { return depth_ <= FlatSum::kMaxStack; }
    std::unique_ptr<FlatSum> Take() { return std::move(flat_); }

  private:
    bool Term(const SumScan& scan, const SumScan::Operand& term) {
        if (term.empty || term.unbalancedAfter) return false;
        for (std::size_t f = term.first; f < term.first + term.count; ++f) {
            if (!Factor(scan, scan.factors[f])) return false;
            if (f != term.first) Apply(scan.factors[f].op);
        }
        return true;
    }

    bool Factor(const SumScan& scan, const SumScan::Operand& factor) {
        if (factor.empty || factor.unbalancedAfter) return false;
        for (std::size_t p = factor.first; p < factor.first + factor.count; ++p) {
            if (!Primary(scan.primaries[p])) return false;
            if (p != factor.first) Apply(scan.primaryOps[p]);
        }
        return true;
    }

    // The primaries the descent would read without a call or a subscript,
    // tried in its order: a number, a plain name, a bracket.
    bool Primary(const PrimaryScan& primary) {
        if (primary.text.empty() || primary.scalarCall || primary.matrixCall ||
            primary.mayCallUser) {
            return false;
        }
        if (primary.literal) {
            FlatStep step = Step(FlatStep::Kind::Literal);
            step.literal = *primary.literal;
            Emit(step);
            Pushed();
            return true;
        }
        if (primary.mayBeConstant) return false;
        if (primary.isName) {
            if (!primary.name.subscripts.empty()) return false;
            FlatStep step = Step(FlatStep::Kind::Name);
            step.name = &primary;
            Emit(step);
            Pushed();
            return true;
        }
        if (!primary.bracketed || ++brackets_ > kMaxBrackets) return false;
        Emit(Step(FlatStep::Kind::Poll));
        return Sum(primary.bracketed->Get());
    }

    static FlatStep Step(FlatStep::Kind kind, char op = 0) {
        FlatStep step;
        step.kind = kind;
        step.op = op;
        return step;
    }
    void Emit(const FlatStep& step) { flat_->steps.push_back(step); }
    void Pushed() { depth_ = std::max(depth_, ++stack_); }
    void Apply(char op) {
        Emit(Step(FlatStep::Kind::Apply, op));
        --stack_;
    }

    static constexpr int kMaxBrackets = 64;
    std::unique_ptr<FlatSum> flat_ = std::make_unique<FlatSum>();
    std::size_t stack_ = 0;
    std::size_t depth_ = 0;  // the most operands on the stack at once
    int brackets_ = 0;
};

}  // namespace

std::unique_ptr<const FlatSum> FlattenSum(const SumScan& scan) {
    Flattener flattener;
    if (!flattener.Sum(scan) || !flattener.fits()) return nullptr;
    return flattener.Take();
}

const FlatSum* FlatSlot::Get(const SumScan& scan) const {
    if (evaluations_ < 2 && ++evaluations_ == 2) flat_ = FlattenSum(scan);
    return flat_.get();
}

}  // namespace lapdesk
