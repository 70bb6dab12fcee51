#include "transform/program/program_function.h"

#include <cmath>
#include <string>
#include <vector>

#include "transform/accurate/point_text.h"

namespace lapdesk {

namespace {

// The interpreter's message on one line: its line breaks become " / ".
std::string OneLine(std::string text) {
    for (std::size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at))
        text.replace(at, 2, " / ");
    return text;
}

}  // namespace

// Forwards everything to the user's view except the messages, which it
// keeps, and the stop request, which it also raises past the budget of
// statements the session may begin in one run.
class ProgramFunction::GuardView : public InterpreterView {
  public:
    GuardView(const Interpreter& session, InterpreterView& user, std::int64_t budget)
        : session_(session), user_(user), budget_(budget) {}

    void Start() {
        messages.clear();
        startedAt_ = session_.StatementsRun();
    }
    bool OverBudget() const { return session_.StatementsRun() - startedAt_ > budget_; }
    std::int64_t budget() const { return budget_; }

    std::vector<std::string> messages;

    void Errmessage(const std::string& message) override { messages.push_back(message); }
    void ShowPageIndex(std::int16_t i) override { user_.ShowPageIndex(i); }
    void ShowLineIndex(std::int16_t i) override { user_.ShowLineIndex(i); }
    void ClearProgramList() override { user_.ClearProgramList(); }
    void AddProgramListEntry(const std::string& s) override { user_.AddProgramListEntry(s); }
    bool ProgramListVisible() const override { return user_.ProgramListVisible(); }
    void SelectProgramListEntry(std::int16_t i) override { user_.SelectProgramListEntry(i); }
    void SetKai(const std::string& text) override { user_.SetKai(text); }
    void ShowHint(const std::string& text) override { user_.ShowHint(text); }
    void HideHint() override { user_.HideHint(); }
    void SetPhaseColour(std::uint32_t bgr) override { user_.SetPhaseColour(bgr); }
    bool RoundedDisplay() const override { return user_.RoundedDisplay(); }
    void ClearMemoryDisplay() override { user_.ClearMemoryDisplay(); }
    void CalProcMeter(double value, bool reset) override { user_.CalProcMeter(value, reset); }
    bool StopRequested() const override { return user_.StopRequested() || OverBudget(); }
    void ProcessEvents() override { user_.ProcessEvents(); }
    void ClearStopRequest() override { user_.ClearStopRequest(); }
    void ShowTransformProgress(bool on) override { user_.ShowTransformProgress(on); }

  private:
    const Interpreter& session_;
    InterpreterView& user_;
    std::int64_t budget_;
    std::int64_t startedAt_ = 0;
};

namespace {

// p as a plain variable of the global page, if it is one.
std::optional<Complex> CurrentP(Interpreter& session) {
    ClsCode& globals = session.ImmediatePage();
    const ClsCode::Found p = globals.AzIsVariableSearch("p");
    if (p.kind != NameKind::Memory || p.page != &globals || p.typ != 0) return std::nullopt;
    return p.value;
}

}  // namespace

bool SetLaplacePoint(Interpreter& session, const Complex& s) {
    ClsCode& globals = session.ImmediatePage();
    ClsCode::Found p = globals.AzIsVariableSearch("p");
    if (p.kind != NameKind::Memory || p.page != &globals) {
        double re = 0.0;
        double im = 0.0;
        if (!globals.AImidateStatement("p=0", re, im)) return false;
        p = globals.AzIsVariableSearch("p");
        if (p.kind != NameKind::Memory || p.page != &globals) return false;
    }
    if (p.typ != 0) return false;
    std::int32_t flat = 0;
    return globals.AzVariableValueDirectSet(p.index, 0, 0, flat, s.Re, s.Im);
}

ProgramFunction::ProgramFunction(Interpreter& session, std::int64_t statementBudget)
    : session_(session),
      userView_(session.view()),
      guard_(std::make_unique<GuardView>(session, session.view(), statementBudget)),
      savedP_(CurrentP(session)) {
    session_.SetView(*guard_);
}

ProgramFunction::~ProgramFunction() {
    session_.SetView(userView_);
    if (savedP_) SetLaplacePoint(session_, *savedP_);
}

FValue ProgramFunction::operator()(const Complex& s) {
    ++evaluations_;
    if (userView_.StopRequested()) return FValue::Stop();
    if (session_.Busy()) return FValue::Failure("電卓が別のプログラムを実行中");
    if (!SetLaplacePoint(session_, s)) return FValue::Failure("p に s を設定できない (p が配列)");
    guard_->Start();
    double re = 0.0;
    double im = 0.0;
    const bool ran = session_.RunProgram(re, im, false, true);
    if (userView_.StopRequested()) return FValue::Stop();
    if (guard_->OverBudget()) {
        return FValue::Failure("プログラムが " + std::to_string(guard_->budget()) +
                               " 文を超えても終わらない");
    }
    if (!ran) {
        std::string why = "プログラムの実行に失敗";
        if (!guard_->messages.empty()) why += ": " + OneLine(guard_->messages.front());
        return FValue::Failure(why);
    }
    if (!std::isfinite(re) || !std::isfinite(im)) return FValue::Failure("値が有限でない");
    return FValue::Of({re, im});
}

AccuracyReport RunAccuracyChecksOnProgram(const TransformDriver& fft, Interpreter& session,
                                          const AccuracyOptions& options) {
    AccuracyReport report;
    {
        ProgramFunction f(session);
        report = RunAccuracyChecks(fft, f.AsFunction(), options);
    }
    if (report.stopped) session.view().ClearStopRequest();
    return report;
}

FftChoice ChooseFftParametersOnProgram(TransformDriver& fft, Interpreter& session, double tol) {
    FftChoice choice;
    {
        ProgramFunction f(session);
        choice = ChooseFftParameters(fft, f.AsFunction(), tol);
    }
    if (choice.stopped) session.view().ClearStopRequest();
    return choice;
}

}  // namespace lapdesk
