// An InterpreterView without a window: it records messages and the answer
// field instead of showing them, and never asks to stop on its own.
#pragma once

#include <string>
#include <vector>

#include "interp/interpreter_view.h"

namespace lapdesk {

class RecordingView : public InterpreterView {
  public:
    std::vector<std::string> messages;
    std::vector<ProgramError> errors;  // also among the messages
    std::vector<std::string> programList;
    std::string kai;
    std::string hint;
    bool rounded = false;
    bool stopRequested = false;

    void Errmessage(const std::string& message) override { messages.push_back(message); }
    void ShowProgramError(const ProgramError& error) override {
        errors.push_back(error);
        InterpreterView::ShowProgramError(error);
    }
    void ShowPageIndex(std::int16_t) override {}
    void ShowLineIndex(std::int16_t) override {}
    void ClearProgramList() override { programList.clear(); }
    void AddProgramListEntry(const std::string& statement) override {
        programList.push_back(statement);
    }
    bool ProgramListVisible() const override { return false; }
    void SelectProgramListEntry(std::int16_t) override {}
    void SetKai(const std::string& text) override { kai = text; }
    void ShowHint(const std::string& text) override { hint = text; }
    void HideHint() override { hint.clear(); }
    void SetPhaseColour(std::uint32_t) override {}
    bool RoundedDisplay() const override { return rounded; }
    void ClearMemoryDisplay() override {}
    void CalProcMeter(double, bool) override {}
    bool StopRequested() const override { return stopRequested; }
    void ProcessEvents() override {}
    void ClearStopRequest() override { stopRequested = false; }
};

}  // namespace lapdesk
