// The interpreter's view on a terminal: messages go to standard error at
// once, the answer field is kept for the caller, the progress meter is a bar
// on standard error when that is a terminal, and Ctrl+C asks a running
// program to stop.
#pragma once

#include <string>

#include "interp/interpreter_view.h"

namespace lapdesk::cli {

class ConsoleView : public InterpreterView {
  public:
    explicit ConsoleView(bool rounded);
    ~ConsoleView() override;
    ConsoleView(const ConsoleView&) = delete;
    ConsoleView& operator=(const ConsoleView&) = delete;

    const std::string& kai() const { return kai_; }
    bool sawMessage() const { return sawMessage_; }

    void Errmessage(const std::string& message) override;
    void ShowPageIndex(std::int16_t) override {}
    void ShowLineIndex(std::int16_t) override {}
    void ClearProgramList() override {}
    void AddProgramListEntry(const std::string&) override {}
    bool ProgramListVisible() const override { return false; }
    void SelectProgramListEntry(std::int16_t) override {}
    void SetKai(const std::string& text) override { kai_ = text; }
    void ShowHint(const std::string& text) override;
    void HideHint() override {}
    void SetPhaseColour(std::uint32_t) override {}
    bool RoundedDisplay() const override { return rounded_; }
    void ClearMemoryDisplay() override {}
    void CalProcMeter(double value, bool reset) override;
    bool StopRequested() const override;
    void ProcessEvents() override {}

    void ClearStopRequest() override;

  private:
    bool rounded_;
    bool sawMessage_ = false;
    bool meterOnTerminal_;
    double meterWidth_ = 0.0;
    std::string kai_;
};

// Message text for a terminal: the interpreter's CR LF becomes a newline,
// and a line longer than a screen (a quoted statement or input of thousands
// of characters) is cut to a readable prefix.
std::string ForTerminal(std::string_view text);

// The user's input as a message quotes it: at most a readable prefix.
std::string QuotedInput(std::string_view text);

}  // namespace lapdesk::cli
