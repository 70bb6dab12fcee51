// An InterpreterView that passes everything on to the view the user sees and
// keeps the first message of the present sample run, so that a failed data
// creation can say which fault ended it.
//
// A run's "Result=..." reaches the answer field only if nothing overwrites
// it before the window can next paint (at ProcessEvents) or the data
// creation ends: each run starts by clearing the field, so only the last
// sample's result is ever seen, and only that one is written as text.
#pragma once

#include <optional>
#include <string>

#include "interp/interpreter_view.h"

namespace lapdesk {

class MessageTap : public InterpreterView {
  public:
    explicit MessageTap(InterpreterView& shown) : shown_(shown) {}
    ~MessageTap() override { ShowPendingResult(); }
    MessageTap(const MessageTap&) = delete;
    MessageTap& operator=(const MessageTap&) = delete;

    // The first message since the last Forget, "" when there was none, and
    // the line where a run before it ended abnormally ("Main: 3行目").
    const std::string& FirstMessage() const { return first_; }
    const std::string& FaultLocation() const { return faultLocation_; }
    void Forget() {
        first_.clear();
        faultLocation_.clear();
    }

    void Errmessage(const std::string& message) override {
        if (first_.empty()) first_ = message;
        shown_.Errmessage(message);
    }
    void ShowProgramError(const ProgramError& error) override {
        if (first_.empty()) {
            first_ = MessageText(error);
            if (error.kind == ProgramErrorKind::AbnormalEnd && error.place.Known()) {
                faultLocation_ = PlaceName(error.place);
            }
        }
        shown_.ShowProgramError(error);
    }
    void ShowPageIndex(std::int16_t pageIndex) override { shown_.ShowPageIndex(pageIndex); }
    void ShowLineIndex(std::int16_t lineIndex) override { shown_.ShowLineIndex(lineIndex); }
    void ClearProgramList() override { shown_.ClearProgramList(); }
    void AddProgramListEntry(const std::string& statement) override {
        shown_.AddProgramListEntry(statement);
    }
    bool ProgramListVisible() const override { return shown_.ProgramListVisible(); }
    void SelectProgramListEntry(std::int16_t index) override {
        shown_.SelectProgramListEntry(index);
    }
    void SetKai(const std::string& text) override {
        pendingResult_.reset();
        shown_.SetKai(text);
    }
    void ShowResult(const Complex& value) override { pendingResult_ = value; }
    void ShowHint(const std::string& text) override { shown_.ShowHint(text); }
    void HideHint() override { shown_.HideHint(); }
    void SetPhaseColour(std::uint32_t bgr) override { shown_.SetPhaseColour(bgr); }
    bool RoundedDisplay() const override { return shown_.RoundedDisplay(); }
    void ClearMemoryDisplay() override { shown_.ClearMemoryDisplay(); }
    void CalProcMeter(double value, bool reset) override { shown_.CalProcMeter(value, reset); }
    bool StopRequested() const override { return shown_.StopRequested(); }
    void ProcessEvents() override {
        ShowPendingResult();
        shown_.ProcessEvents();
    }
    void ClearStopRequest() override { shown_.ClearStopRequest(); }
    void ShowTransformProgress(bool on) override { shown_.ShowTransformProgress(on); }

  private:
    void ShowPendingResult() {
        if (pendingResult_) shown_.ShowResult(*pendingResult_);
        pendingResult_.reset();
    }

    InterpreterView& shown_;
    std::optional<Complex> pendingResult_;
    std::string first_;
    std::string faultLocation_;
};

}  // namespace lapdesk
