#include "calculator/screen_pace.h"

#include <ctime>

namespace lapdesk {

namespace {

std::int64_t CoarseNowNs() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
    return static_cast<std::int64_t>(now.tv_sec) * 1'000'000'000 + now.tv_nsec;
}

}  // namespace

bool ScreenPace::Due() {
    const std::int64_t now = CoarseNowNs();
    if (started_ && now - lastNs_ < intervalNs_) return false;
    started_ = true;
    lastNs_ = now;
    return true;
}

void ScreenPace::Start() {
    started_ = true;
    lastNs_ = CoarseNowNs();
}

}  // namespace lapdesk
