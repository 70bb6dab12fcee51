// One calculator session: the immediate page with the global variables, the
// program pages built from the program text, the language options, and the
// driver that cuts, analyses and runs the program.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "interp/code_page.h"
#include "interp/interpreter_view.h"

namespace lapdesk {

// The outcome of one immediate line: its value, or why this line failed.
struct ImmediateResult {
    bool ok = false;
    Complex value;
    std::string reason;  // empty when ok
};

class Interpreter {
  public:
    explicit Interpreter(InterpreterView& view);
    ~Interpreter();
    Interpreter(const Interpreter&) = delete;
    Interpreter& operator=(const Interpreter&) = delete;

    InterpreterView& view() { return *view_; }
    void SetView(InterpreterView& view) { view_ = &view; }

    // Variable names distinguish letter case (on at start).
    bool caseSensitive() const { return caseSensitive_; }
    void SetCaseSensitive(bool on) {
        caseSensitive_ = on;
        NamesChanged();
    }

    // To be called whenever a name may find another variable than before:
    // variables declared or erased, parameter lists, pages or the case
    // option changed. Places kept by earlier reads are then searched again.
    void NamesChanged() { ++namesGeneration_; }
    std::uint64_t NamesGeneration() const { return namesGeneration_; }
    const std::uint64_t* NamesGenerationCounter() const { return &namesGeneration_; }

    // The scans kept for the texts the session evaluates again and again.
    ScanCache& Scans() { return scans_; }

    // The immediate page (created on first use) and the program pages.
    ClsCode& ImmediatePage();
    void RegisterGlobalPage(ClsCode& page);
    std::int16_t PageCount() const;
    ClsCode& Page(std::int16_t index);
    ClsCode* FindPage(std::string_view name);

    // The program text the driver cuts; a changed text is analysed again.
    void SetProgramText(std::string text);
    const std::string& ProgramText() const { return programText_; }
    bool ProgramAnalysed() const { return programAnalysed_; }
    void ClearProgramAnalysed() { programAnalysed_ = false; }

    // Analyses (where needed) and runs "Main"; the status goes to kai.
    bool RunProgram(double& re, double& im, bool eraseGlobals, bool run);
    bool CutProgram();
    // The 0-based line of the program text that entry `entry` of the
    // execution list was cut from; -1 when the text has changed since.
    std::int32_t SourceLineOf(std::int16_t entry) const;
    // Erases the global memory and every page's memory (not while busy).
    void EraseGlobals();

    // The immediate line: a declaration ("global "/"Dim "), an assignment at
    // the first "=" outside brackets, or an expression.
    ImmediateResult ImmediateLine(std::string_view line);

    // Nesting of user-function calls, bounded so runaway recursion ends
    // with a fault instead of exhausting the stack.
    bool EnterCall();
    void LeaveCall() { --callDepth_; }
    bool Running() const { return callDepth_ > 0; }

    // True while RunProgram is at work. The window lets events run during a
    // program (and waits on messages inside it), so a second RunProgram or an
    // erase of the globals from there is refused instead of pulling the
    // pages away from under the first.
    bool Busy() const { return busy_ || Running(); }

    // True once every 1024 calls: how often the run loop looks at the stop
    // request and lets window events run.
    bool PollDue() { return (++pollCount_ & 1023u) == 0; }

    // The statement a run is at. It is noted at every statement and told to
    // the view only when window events run and when a run ends or fails:
    // telling the view at every statement would cost more than running it.
    void NoteStatement(std::int16_t page, std::int16_t line) {
        runningPage_ = page;
        runningLine_ = line;
        ++statementsRun_;
    }
    void ShowRunningStatement();
    // The view's window events, then the vector registers cleared of what
    // its code left there (ClearUpperVectorRegisters), before statements
    // run on.
    void LetViewEventsRun();
    // Statements begun since the session was made, calls included.
    std::int64_t StatementsRun() const { return statementsRun_; }

  private:
    bool RunProgramOnce(double& re, double& im, bool eraseGlobals, bool run);
    void EraseAllMemories();
    bool BuildPages(const std::vector<std::string>& statements);

    InterpreterView* view_;
    bool caseSensitive_ = true;
    // Before the pages: a page that goes away tells of it.
    std::uint64_t namesGeneration_ = 0;
    ScanCache scans_;
    std::unique_ptr<ClsCode> immediateOwned_;
    ClsCode* immediate_ = nullptr;
    std::vector<std::unique_ptr<ClsCode>> pages_;
    std::string programText_;
    bool programAnalysed_ = false;
    std::vector<std::int32_t> sourceLines_;  // of each execution list entry
    bool cutIsCurrent_ = false;              // the text is the one last cut
    int callDepth_ = 0;
    bool busy_ = false;
    unsigned pollCount_ = 0;
    std::int16_t runningPage_ = kNoEntry;  // by index: the pages may be rebuilt
    std::int16_t runningLine_ = -1;
    std::int64_t statementsRun_ = 0;
};

}  // namespace lapdesk
