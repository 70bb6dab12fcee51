// What the evaluator asks of the program around it: the values of names,
// calls of user functions and matrix functions on named arrays.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "values/complex.h"

namespace lapdesk {

class Evaluator;
class ScanCache;
struct SubscriptScan;

class NameScope {
  public:
    virtual ~NameScope() = default;

    // Where a name was found the last time a primary read it, kept with the
    // primary's scan: the scope that filled it in may go there again without
    // searching, for as long as its generation is current. Only that scope
    // reads the fields.
    struct Place {
        const NameScope* scope = nullptr;
        std::uint64_t generation = 0;
        void* owner = nullptr;
        std::int16_t index = -1;
        std::int16_t slot = -1;
        std::uint8_t kind = 0;  // what the scope found there, in its own terms
        // A plain variable's values, once the scope has found one there: the
        // evaluator reads them without asking (ReadKnown).
        const std::vector<Complex>* values = nullptr;
    };

    // The value of a plain name whose place holds its variable's values,
    // read without asking the scope, for as long as the names have not
    // changed since the scope filled the place in; false otherwise.
    bool ReadKnown(const Place& place, Complex& value) const {
        if (place.values == nullptr || place.scope != this ||
            place.generation != *namesGeneration_) {
            return false;
        }
        value = place.values->front();  // a variable has at least one element
        return true;
    }

    // The value of a variable (no subscripts) or an array element (one or
    // two subscripts, which the scope evaluates with
    // Evaluator::EvalArgument). False when the name is unknown or a
    // subscript fails. `place` is this primary's kept Place.
    virtual bool ReadVariable(Evaluator& evaluator, std::string_view name,
                              std::span<const SubscriptScan> subscripts, Place& place,
                              Complex& value) = 0;

    // Runs the user function called by `call` (Name(arguments)) and gives its
    // value. False when no function of that name exists or the call failed.
    virtual bool CallUserFunction(Evaluator& evaluator, std::string_view call, Complex& value) = 0;

    // Applies matrix function `index` (its row in the matrix function table)
    // to the arrays named by `arguments`. A scalar result goes into `value`;
    // an array result is kept by the scope for the assignment that called it.
    virtual bool CallMatrixFunction(std::size_t index, std::span<const std::string_view> arguments,
                                    Complex& value) = 0;

    // The scans kept for the texts evaluated in this scope, again and again.
    virtual ScanCache& Scans() = 0;

    // Counts primaries evaluated, so that a stop request can end the work of
    // one long expression: every kPollInterval of them the scope may look
    // at its stop request (StopPoint) and raise its own signal. A sum counts
    // its primaries all at once, and stops as often as they would have one
    // by one.
    void PollStop(unsigned primaries = 1) {
        polls_ += primaries;
        while (polls_ >= kPollInterval) {
            polls_ -= kPollInterval;
            StopPoint();
        }
    }

  protected:
    static constexpr unsigned kPollInterval = 1024;
    virtual void StopPoint() {}
    // The counter of name changes that places are checked against; a scope
    // without one never fills in values.
    void SetNamesGeneration(const std::uint64_t* generation) { namesGeneration_ = generation; }

  private:
    static constexpr std::uint64_t kNoGeneration = 0;
    unsigned polls_ = 0;
    const std::uint64_t* namesGeneration_ = &kNoGeneration;
};

}  // namespace lapdesk
