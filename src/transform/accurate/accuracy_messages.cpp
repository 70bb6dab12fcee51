#include "transform/accurate/accuracy_messages.h"

#include <algorithm>
#include <cstdio>

#include "transform/accurate/point_text.h"

namespace lapdesk {

namespace {

// D with three digits: enough to tell 0.6 from 60.
std::string ThreeDigits(double x) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.3g", x);
    return buffer;
}

long CountState(const AccurateResult& result, PointState state) {
    return std::count_if(result.points.begin(), result.points.end(),
                         [state](const AccuratePoint& p) { return p.state == state; });
}

}  // namespace

std::string SingularityMessage(const SingularityCheck& check, const Conditions& c) {
    switch (check.verdict) {
        case SingularityVerdict::Fine:
            return "";
        case SingularityVerdict::Singular:
            return "F は Re s = γ0/T = " + RoundTripText(c.Gamma()) +
                   " の上かその右に特異点を持つようです (D = " + ThreeDigits(check.D) +
                   ")。この f(t) は信用できません。γ0 を大きくしてください";
        case SingularityVerdict::CannotVerify:
            break;
    }
    return "特異点の有無を確かめられません: " + check.reason;
}

std::string NotApplicableMessage(const AccurateResult& result) {
    const long count = CountState(result, PointState::NotApplicable);
    if (count == 0) return "";
    std::string text = "高精度逆変換を適用できない " + std::to_string(count) + " 点を除きました";
    if (result.stopped) return text + " (中断)";
    if (!result.problems.empty()) text += " (" + result.problems.front() + ")";
    return text;
}

std::string NotConvergedMessage(const AccurateResult& result) {
    const long count = CountState(result, PointState::NotConverged);
    if (count == 0) return "";
    return "高精度逆変換の " + std::to_string(count) + " 点は誤差の見積りが目標に届きません";
}

}  // namespace lapdesk
