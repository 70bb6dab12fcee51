#include "transform/program/program_sampling.h"

#include <optional>
#include <string>

#include "transform/program/message_tap.h"
#include "values/number_text.h"

namespace lapdesk {

namespace {

// The interpreter shows its messages through the tap for as long as the
// data are being made.
class ViewSwap {
  public:
    ViewSwap(Interpreter& session, InterpreterView& view)
        : session_(session), shown_(session.view()) {
        session_.SetView(view);
    }
    ~ViewSwap() { session_.SetView(shown_); }
    ViewSwap(const ViewSwap&) = delete;
    ViewSwap& operator=(const ViewSwap&) = delete;

  private:
    Interpreter& session_;
    InterpreterView& shown_;
};

// "k = 10 (p = 1+12.5664j)": the point where the data creation ended.
std::string PointText(const TransformDriver& driver, int k) {
    Complex p = driver.SamplePoint(k);
    return "k = " + std::to_string(k) + " (p = " + ComplexToText(p, true) + ")";
}

// The interpreter's message on one line, after a colon, with the line of an
// abnormal end; "" without a message.
std::string MessageDetail(const MessageTap& tap) {
    std::string text = tap.FirstMessage();
    if (text.empty()) return text;
    for (std::size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at)) {
        text.replace(at, 2, " ");
    }
    if (!tap.FaultLocation().empty()) text += " (" + tap.FaultLocation() + ")";
    return ": " + text;
}

// p takes what the statement "p=<Re>+<Im>j" gives it, each part written as
// DoubleToText writes it. Read back straight from that text, the value is the
// same without the evaluator; a part the text cannot carry (it overflows
// when read) goes through the statement and its failure. `re` is the real
// part read back, found once for the many points that share it.
bool SetP(Interpreter& session, const Complex& s, std::optional<double> re) {
    const std::optional<double> im = DoubleThroughText(s.Im);
    if (re && im) return session.ImmediatePage().StoreOwnValue("p", {*re, *im});
    const std::string statement = "p=" + DoubleToText(s.Re) + "+" + DoubleToText(s.Im) + "j";
    double ignoredRe = 0.0;
    double ignoredIm = 0.0;
    return session.ImmediatePage().AImidateStatement(statement, ignoredRe, ignoredIm);
}

Outcome Interrupted(TransformDriver& driver, MessageTap& tap, int k) {
    tap.ClearStopRequest();
    driver.SetStatus("プログラム実行中断");
    return Outcome::Failure(PointText(driver, k) + " で停止ボタンにより中断しました");
}

Outcome RuntimeError(TransformDriver& driver, std::string reason) {
    driver.SetStatus("数値計算実行時エラー");
    return Outcome::Failure(std::move(reason));
}

// Runs the program for one sample point and stores its value.
Outcome SampleOnce(TransformDriver& driver, Interpreter& session, MessageTap& tap, int k,
                   std::optional<double> gamma) {
    tap.Forget();
    if (!SetP(session, driver.SamplePoint(k), gamma)) {
        return RuntimeError(
            driver, PointText(driver, k) + ": p に標本点を代入できません" + MessageDetail(tap));
    }
    double re = 0.0;
    double im = 0.0;
    const bool ran = session.RunProgram(re, im, false, true);
    if (tap.StopRequested()) return Interrupted(driver, tap, k);
    if (!ran) {
        return RuntimeError(
            driver, PointText(driver, k) + " でプログラムが失敗しました" + MessageDetail(tap));
    }
    const Outcome stored = driver.StoreSample(k, {re, im});
    if (!stored.ok) return RuntimeError(driver, stored.reason);
    return stored;
}

}  // namespace

bool ASetLapOpValur(Interpreter& session, const Complex& s) {
    return SetP(session, s, DoubleThroughText(s.Re));
}

bool ASetLapOpValur(Interpreter& session, const TransformDriver& driver) {
    return ASetLapOpValur(session, driver.SamplePoint(0));
}

Outcome MakeDataFromProgram(TransformDriver& driver, Interpreter& session) {
    const Conditions c = driver.GetConditions();
    // A program already running (the calculator's own run) is not disturbed.
    if (!(c.T > 0 && c.N != 0 && c.Gamma0 != 0) || session.Busy()) {
        driver.SetStatus("データ作成不許可");
        return Outcome::Failure(session.Busy() ? "計算機でプログラムが実行中です"
                                               : "T > 0, N ≠ 0, γ0 ≠ 0 でなければなりません");
    }
    MessageTap tap(session.view());
    const ViewSwap swap(session, tap);
    tap.ShowTransformProgress(true);
    driver.BeginDataCreation();
    tap.ClearStopRequest();
    tap.CalProcMeter(c.NPos, true);
    const std::optional<double> gamma = DoubleThroughText(c.Gamma());
    Outcome made;
    for (int k = 0; k <= c.NPos && made.ok; ++k) {
        tap.CalProcMeter(k, false);
        made = tap.StopRequested() ? Interrupted(driver, tap, k)
                                   : SampleOnce(driver, session, tap, k, gamma);
    }
    tap.CalProcMeter(c.NPos + 1, false);
    tap.ProcessEvents();
    tap.ShowTransformProgress(false);
    if (!made.ok) return made;
    return driver.FinishDataCreation();
}

bool TesmorDataSet(TransformDriver& driver, Interpreter& session) {
    return MakeDataFromProgram(driver, session).ok;
}

}  // namespace lapdesk
