#include "expr/nesting_guard.h"

#include <cstddef>
#include <cstdint>

namespace lapdesk {

namespace {

// Levels are counted and the stack used since the outermost level is
// measured; either limit ends the nesting. The stack budget keeps well
// inside the usual 8 MiB even with sanitizer-sized frames.
constexpr int kMaxLevels = 2000;
constexpr std::uintptr_t kStackBudget = 3u << 20;

thread_local int levels = 0;
thread_local std::uintptr_t origin = 0;

std::uintptr_t StackPosition() {
    return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
}

}  // namespace

NestingGuard::NestingGuard() {
    const std::uintptr_t here = StackPosition();
    if (levels++ == 0) origin = here;
    const std::uintptr_t used = origin > here ? origin - here : here - origin;
    ok_ = levels <= kMaxLevels && used <= kStackBudget;
}

NestingGuard::~NestingGuard() { --levels; }

}  // namespace lapdesk
