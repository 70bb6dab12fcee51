// Bounds the nesting of the language's recursive work (brackets in an
// expression, function calls) so that deep input ends with an error instead
// of overflowing the machine stack.
#pragma once

#include <cstddef>

namespace lapdesk {

class NestingGuard {
  public:
    // The stack budget counts from the outermost guard; a guard with a
    // smaller budget fails before the evaluator's own nesting does.
    static constexpr std::size_t kStackBudget = 3u << 20;
    explicit NestingGuard(std::size_t stackBudget = kStackBudget);
    ~NestingGuard();
    NestingGuard(const NestingGuard&) = delete;
    NestingGuard& operator=(const NestingGuard&) = delete;

    // False when this level is one too many: the caller must fail.
    bool ok() const { return ok_; }

    // False when this level, or `depth` further levels below it, would be
    // too many: a text nested that deep can fail before any work on it.
    bool Admits(std::size_t depth) const;

  private:
    bool ok_;
};

}  // namespace lapdesk
