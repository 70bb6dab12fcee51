// Bounds the nesting of the language's recursive work (brackets in an
// expression, function calls) so that deep input ends with an error instead
// of overflowing the machine stack.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lapdesk {

class NestingGuard {
  public:
    // The stack budget counts from the outermost guard; a guard with a
    // smaller budget fails before the evaluator's own nesting does. The
    // default keeps well inside the usual 8 MiB even with sanitizer-sized
    // frames.
    static constexpr std::size_t kStackBudget = 3u << 20;

    // Inline: every expression takes one.
    explicit NestingGuard(std::size_t stackBudget = kStackBudget) {
        const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
        if (levels_++ == 0) origin_ = here;
        const std::uintptr_t used = origin_ > here ? origin_ - here : here - origin_;
        ok_ = levels_ <= kMaxLevels && used <= stackBudget;
    }
    ~NestingGuard() { --levels_; }
    NestingGuard(const NestingGuard&) = delete;
    NestingGuard& operator=(const NestingGuard&) = delete;

    // False when this level is one too many: the caller must fail.
    bool ok() const { return ok_; }

    // False when this level, or `depth` further levels below it, would be
    // too many: a text nested that deep can fail before any work on it.
    bool Admits(std::size_t depth) const {
        return ok_ && depth <= static_cast<std::size_t>(kMaxLevels - levels_);
    }

  private:
    // Levels are counted and the stack used since the outermost level is
    // measured; either limit ends the nesting.
    static constexpr int kMaxLevels = 2000;
    static constinit inline thread_local int levels_ = 0;
    static constinit inline thread_local std::uintptr_t origin_ = 0;

    bool ok_;
};

}  // namespace lapdesk
