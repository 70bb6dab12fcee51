#include "expr/nesting_guard.h"

#include <cstddef>
#include <cstdint>

namespace lapdesk {

namespace {

// Levels are counted and the stack used since the outermost level is
// measured; either limit ends the nesting. The default stack budget keeps
// well inside the usual 8 MiB even with sanitizer-sized frames.
constexpr int kMaxLevels = 2000;

thread_local int levels = 0;
thread_local std::uintptr_t origin = 0;

std::uintptr_t StackPosition() {
    return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
}

}  // namespace

NestingGuard::NestingGuard(std::size_t stackBudget) {
    const std::uintptr_t here = StackPosition();
    if (levels++ == 0) origin = here;
    const std::uintptr_t used = origin > here ? origin - here : here - origin;
    ok_ = levels <= kMaxLevels && used <= stackBudget;
}

NestingGuard::~NestingGuard() {
    --levels;
}

bool NestingGuard::Admits(std::size_t depth) const {
    return ok_ && depth <= static_cast<std::size_t>(kMaxLevels - levels);
}

}  // namespace lapdesk
