// The compiled form of a sum: the steps a left-to-right descent through its
// terms, factors and primaries takes, laid out once so that evaluating it is
// one pass over the steps. Numbers, plain names and brackets are steps of
// their own; every other primary (a call, an element, a named constant) is
// one step that evaluates it. Empty operands and unbalanced brackets fail at
// the place the descent reaches them, after the operands before them have
// been evaluated (a user function among them has run).
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "values/complex.h"

namespace lapdesk {

struct PrimaryScan;
struct SumScan;

struct SumStep {
    enum class Kind : std::uint8_t {
        Sign,          // apply `op` to 0 and the top: a sum's first term
        Apply,         // pop the right operand, apply `op` to the one below it
        Literal,       // poll, push the number
        Name,          // poll, push the variable's value
        Poll,          // poll (a bracket is a primary too)
        Primary,       // evaluate the primary, push its value
        Fail,          // an empty operand: not an expression
        FailBrackets,  // the brackets do not balance past this point
    };
    Kind kind = Kind::Sign;
    char op = 0;
    Complex literal;
    const PrimaryScan* primary = nullptr;  // Name and Primary: its scan and kept place
};

struct SumCode {
    std::vector<SumStep> steps;
    std::size_t stackDepth = 0;  // the most operands pushed at once
};

SumCode CompileSum(const SumScan& scan);

// A scan's code, compiled the first time the scan is evaluated. Copies
// start without one: the steps point into the scan they were made from.
class SumCodeSlot {
  public:
    SumCodeSlot() = default;
    SumCodeSlot(const SumCodeSlot&) {}
    SumCodeSlot& operator=(const SumCodeSlot&) { return *this; }

    const SumCode& Get(const SumScan& scan) const;

  private:
    mutable std::unique_ptr<const SumCode> code_;
};

}  // namespace lapdesk
