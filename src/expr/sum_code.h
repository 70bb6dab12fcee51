// The compiled form of a sum: the steps a left-to-right descent through its
// terms, factors and primaries takes, laid out once so that evaluating it is
// one pass over the steps. Numbers and plain names are steps of their own,
// or the right operand of the operator step that uses them; brackets open
// no step of their own; every other primary (a call, an element, a named
// constant) is one step that evaluates it. Empty operands and unbalanced
// brackets fail at the place the descent reaches them, after the operands
// before them have been evaluated (a user function among them has run).
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
        // Pop the right operand and apply the operator to the one below it.
        Add,
        Subtract,
        Multiply,
        Divide,
        Power,
        // The same with a variable's value as the right operand.
        AddName,
        SubtractName,
        MultiplyName,
        DivideName,
        PowerName,
        // The same with a number as the right operand.
        AddLiteral,
        SubtractLiteral,
        MultiplyLiteral,
        DivideLiteral,
        PowerLiteral,
        Negate,        // 0 - the top: a sum's first term after a minus sign
        Literal,       // push the number
        Name,          // push the variable's value
        Primary,       // evaluate the primary, push its value
        Fail,          // an empty operand: not an expression
        FailBrackets,  // the brackets do not balance past this point
        Done,          // the end of the steps: the top is the sum
    };
    Kind kind = Kind::Negate;
    // The top becomes 0 + top after the step (a minus zero turns plus), as
    // a sum's first term after a plus sign, or with no sign, does.
    bool plusZero = false;
    Complex literal;
    const PrimaryScan* primary = nullptr;  // names and Primary: its scan and kept place
};

struct SumCode {
    std::vector<SumStep> steps;
    std::size_t stackDepth = 0;  // the most operands pushed at once
    // The primaries the steps read without a step of their own (numbers,
    // names, brackets): each counts once towards the scope's stop polls.
    unsigned polls = 0;
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
