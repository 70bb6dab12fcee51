// An expression of numbers, plain variable names, operators and brackets
// only, laid out as the steps the evaluator's descent takes through it: the
// same operands read in the same order, the same operators applied in the
// same order, the same stop polls. Running the steps gives exactly what the
// descent gives, without walking its levels for every operand.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "values/complex.h"

namespace lapdesk {

struct PrimaryScan;
struct SumScan;

struct FlatStep {
    enum class Kind : std::uint8_t {
        Sign,     // apply `op` to 0 and the top: a sum's first term
        Literal,  // poll, push the number
        Name,     // poll, push the variable's value
        Poll,     // poll (a bracket is a primary too)
        Apply,    // pop the right operand, apply `op` to the one below it
    };
    Kind kind = Kind::Sign;
    char op = 0;
    Complex literal;
    const PrimaryScan* name = nullptr;  // its name and the place kept for it
};

struct FlatSum {
    static constexpr std::size_t kMaxStack = 16;
    std::vector<FlatStep> steps;
};

// The flat form of `scan`, or nothing when it holds anything else (a call,
// subscripts, a named constant, an empty operand, unbalanced brackets) or
// needs more than kMaxStack operands at once.
std::unique_ptr<const FlatSum> FlattenSum(const SumScan& scan);

// A scan's flat form, made the second time the scan is evaluated (a text
// evaluated once is not worth it). Copies start without one: the steps point
// into the scan they were made from.
class FlatSlot {
  public:
    FlatSlot() = default;
    FlatSlot(const FlatSlot&) {}
    FlatSlot& operator=(const FlatSlot&) { return *this; }

    const FlatSum* Get(const SumScan& scan) const;

  private:
    mutable std::unique_ptr<const FlatSum> flat_;
    mutable std::uint8_t evaluations_ = 0;
};

}  // namespace lapdesk
