// What the interpreter needs of the window that shows it: messages, the
// running page and line, the program list, the answer field, the hint label,
// the phase colour, the progress meter, the stop request, and a way to let
// pending window events run. The calculator window implements it; the
// command-line tool and the tests use RecordingView.
#pragma once

#include <cstdint>
#include <string>

#include "interp/program_error.h"
#include "values/complex.h"
#include "values/number_text.h"

namespace lapdesk {

class InterpreterView {
  public:
    virtual ~InterpreterView() = default;

    // Shows an error message; the window blocks here until it is dismissed.
    virtual void Errmessage(const std::string& message) = 0;

    virtual void ShowPageIndex(std::int16_t pageIndex) = 0;  // "PGLb"
    virtual void ShowLineIndex(std::int16_t lineIndex) = 0;  // "PCLb"

    // The execution list "ProgramList": one entry per statement.
    virtual void ClearProgramList() = 0;
    virtual void AddProgramListEntry(const std::string& statement) = 0;
    virtual bool ProgramListVisible() const = 0;
    virtual void SelectProgramListEntry(std::int16_t index) = 0;

    virtual void SetKai(const std::string& text) = 0;  // the answer/status field
    // The value a program run ended with, shown in the answer field as
    // "Result=..."; a view that would overwrite it unseen may skip the text.
    virtual void ShowResult(const Complex& value) {
        Complex shown = value;
        SetKai("Result=" + ComplexToText(shown, RoundedDisplay()));
    }
    virtual void ShowHint(const std::string& text) = 0;  // "Label5", made visible
    virtual void HideHint() = 0;
    virtual void SetPhaseColour(std::uint32_t bgr) = 0;  // "MessageBox" background, 0xBBGGRR
    virtual bool RoundedDisplay() const = 0;             // "MenueSingleDisp" checked
    virtual void ClearMemoryDisplay() = 0;               // "MemoList", "MemorysLb", "MemorysLbG"

    virtual void CalProcMeter(double value, bool reset) = 0;
    virtual bool StopRequested() const = 0;
    virtual void ProcessEvents() = 0;

    // Sets the stop request back to false (the transform's data creation
    // clears it before it starts and after it has honoured it).
    virtual void ClearStopRequest() {}
    // Switches the window to the view it shows while the transform runs the
    // program point by point, and back.
    virtual void ShowTransformProgress(bool /*on*/) {}
    // An error of a program statement, or the fault that ended a run, with
    // its place; shown as its message unless the view does more with it.
    virtual void ShowProgramError(const ProgramError& error) { Errmessage(MessageText(error)); }
};

}  // namespace lapdesk
