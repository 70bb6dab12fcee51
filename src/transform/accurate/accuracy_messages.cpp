#include "transform/accurate/accuracy_messages.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "transform/accurate/point_text.h"

namespace lapdesk {

namespace {

// Three digits: enough to tell 0.6 from 60, and an error from ten times it.
std::string ThreeDigits(double x) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.3g", x);
    return buffer;
}

// How the texts name a result.
std::string ResultName(bool accurate) {
    return accurate ? "高精度逆変換" : "減衰FFT ";
}

// "n 点 (t = a〜b)" for the points in the given state, or "" when none.
std::string PointsIn(const AccurateResult& result, PointState state) {
    long count = 0;
    double first = 0.0, last = 0.0;
    for (const AccuratePoint& p : result.points) {
        if (p.state != state) continue;
        if (count++ == 0) first = p.t;
        last = p.t;
    }
    if (count == 0) return "";
    return std::to_string(count) + " 点 (t = " + RoundTripText(first) + "〜" + RoundTripText(last) +
           ")";
}

long CountState(const AccurateResult& result, PointState state) {
    return std::count_if(result.points.begin(), result.points.end(),
                         [state](const AccuratePoint& p) { return p.state == state; });
}

// Whether the accurate result stands although the FFT's line is not fit.
std::string AccurateBeside(const AccurateResult& result) {
    const long flagged =
        static_cast<long>(result.points.size()) - CountState(result, PointState::Converged);
    if (flagged == 0)
        return "。高精度逆変換は自分の積分路で F を見るので影響を受けず、全点が自身の検査に合格"
               "しています";
    return "。高精度逆変換は自分の積分路で F を見ますが、" + std::to_string(flagged) +
           " 点は自身の検査に合格せず、印を付けています";
}

}  // namespace

std::string SingularityMessage(const AccuracyReport& report, const Conditions& c) {
    const bool accurate = report.accurate.has_value();
    switch (report.check.verdict) {
        case SingularityVerdict::Fine:
            return "";
        case SingularityVerdict::Singular: {
            const std::string finding =
                "F は Re s = γ0/T = " + RoundTripText(c.Gamma()) +
                " の上かその右に特異点を持つようです (D = " + ThreeDigits(report.check.D) + ")。";
            if (!accurate) return finding + "この f(t) は信用できません。γ0 を大きくしてください";
            return finding + "減衰FFT の f(t) は信用できません" + AccurateBeside(*report.accurate);
        }
        case SingularityVerdict::CannotVerify:
            break;
    }
    std::string text = "特異点の有無を確かめられません: " + report.check.reason;
    if (accurate) text += "。高精度逆変換は減衰FFT と照合していません";
    return text;
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
    const std::string points = PointsIn(result, PointState::NotConverged);
    if (points.empty()) return "";
    return "高精度逆変換の " + points + " は誤差の見積りが目標に届きません";
}

std::string DisagreementMessage(const AccurateResult& result) {
    const std::string points = PointsIn(result, PointState::Disagrees);
    if (points.empty()) return "";
    return "高精度逆変換の " + points +
           " は減衰FFT とその誤差帯に合わないため、精度を保証できない点として印を付けました";
}

ErrorSummary SummariseFft(const TransformDriver& fft, const FftErrorBand& band) {
    ErrorSummary summary;
    if (!band.ok) return summary;
    const Conditions c = fft.GetConditions();
    const ReliablePart part = ReliablePartOf(c);
    for (int n = part.first; n <= part.last; ++n) {
        summary.largest = std::max(summary.largest, band.band[n]);
        summary.maxAbs = std::max(summary.maxAbs, std::abs(fft.Store()[kResult].Values[n]));
    }
    summary.ok = std::isfinite(summary.largest) && std::isfinite(summary.maxAbs);
    return summary;
}

ErrorSummary SummariseAccurate(const AccurateResult& result) {
    ErrorSummary summary;
    for (const AccuratePoint& p : result.points) {
        if (p.state != PointState::Converged) continue;
        summary.ok = true;
        summary.largest = std::max(summary.largest, p.estimate);
        summary.maxAbs = std::max(summary.maxAbs, std::abs(p.value));
    }
    return summary;
}

std::string SummaryLine(const ErrorSummary& s, bool accurate) {
    if (!s.ok) return "";
    std::string text = ResultName(accurate) + "の推定誤差: 最大 " + ThreeDigits(s.largest);
    if (s.maxAbs > 0) text += " (max |f| の " + ThreeDigits(100 * s.largest / s.maxAbs) + " %)";
    return text;
}

std::string LargeErrorMessage(const ErrorSummary& s, bool accurate) {
    if (!s.ok || s.largest <= kLargeErrorShare * s.maxAbs) return "";
    return ResultName(accurate) + "の推定誤差が max |f| の 1 % を超えています" +
           (accurate ? std::string() : std::string("。高精度で確かめてください"));
}

namespace {

// The value to the digits its estimate vouches for: 0.9999999999 ± 2e-9
// reads 1, and 1e-10 ± 2e-9 reads 0.
std::string EndValueText(const char* name, const EndValue& v) {
    const double unit = std::pow(10.0, std::floor(std::log10(v.estimate)));
    const double shown = std::round(v.value / unit) * unit + 0.0;  // no "-0"
    char text[96];
    std::snprintf(text, sizeof text, "%s = %.12g (±%.2g)", name, shown, v.estimate);
    return text;
}

}  // namespace

std::string InitialValueLine(const EndValues& ends) {
    if (ends.initial.found) return EndValueText("f(0+)", ends.initial);
    return "f(0+): s·F(s) が s → ∞ で一定の値に落ち着かないため求めません";
}

std::string FinalValueLine(const EndValues& ends) {
    if (ends.final.found) return EndValueText("f(∞)", ends.final);
    return "f(∞): s·F(s) が s → 0 で落ち着かないか、f(t) が 1000 T "
           "までに落ち着かないため求めません";
}

std::string FftChoiceLine(const FftChoice& choice, double tol) {
    char text[256];
    const char* head =
        choice.met ? "目標精度 %.2g: N = %d, γ0 = %.3g を選びました（推定誤差 max |f| の %.2g、"
                     "探索に F の値 %lld 個）"
                   : "目標精度 %.2g に届きません: 最良は N = %d, γ0 = %.3g で推定誤差 max "
                     "|f| の %.2g（探索に F の値 %lld 個）";
    std::snprintf(text, sizeof text, head, tol, choice.N, choice.gamma0, choice.reached,
                  static_cast<long long>(choice.evaluations));
    std::string line = text;
    if (!choice.reason.empty()) line += "。" + choice.reason;
    return line;
}

}  // namespace lapdesk
