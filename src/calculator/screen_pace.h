// The screen's pace for what a program run shows: true at most once per
// interval. It reads the coarse monotonic clock, which costs a few
// nanoseconds where the precise one may cost a system call, and a run asks
// at every sample.
#pragma once

#include <cstdint>

namespace lapdesk {

class ScreenPace {
  public:
    explicit ScreenPace(std::int64_t intervalMs) : intervalNs_(intervalMs * 1'000'000) {}

    // True the first time, and then once the interval has passed since the
    // last true.
    bool Due();
    // Counts the interval from now: the next Due is one interval away.
    void Start();

  private:
    std::int64_t intervalNs_;
    std::int64_t lastNs_ = 0;
    bool started_ = false;
};

}  // namespace lapdesk
