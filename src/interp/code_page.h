// One page of the calculator language: the immediate page "Imidate" (whose
// memory is the global memory), the "Main" page, or a function page, with
// its statements, variables, parameters, analysis tables and run state.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "expr/name_scope.h"
#include "interp/page_records.h"
#include "interp/program_error.h"
#include "values/matrix.h"

namespace lapdesk {

class Interpreter;
class Evaluator;

class ClsCode : public NameScope {
  public:
    explicit ClsCode(Interpreter& session);
    ~ClsCode() override;
    ClsCode(const ClsCode&) = delete;
    ClsCode& operator=(const ClsCode&) = delete;

    const std::string& PageName() const { return pageName_; }
    void SetPageName(std::string name);  // "Imidate" (any case) makes it the global page
    bool Analized() const { return analized_; }
    void SetAnalized(bool analized);  // false on the immediate page clears every page
    std::int16_t PageIndex() const { return pageIndex_; }
    void SetPageIndex(std::int16_t index);
    std::int16_t NumofMemory() const { return static_cast<std::int16_t>(memory_.size()); }
    std::int16_t NumofArg() const;

    // Statements: Code(i) reads line i (empty text past the end); SetCode
    // replaces line i, or appends when i is not a stored line.
    std::string Code(std::int16_t i, std::int16_t& lnNo) const;
    void SetCode(std::int16_t i, std::int16_t lnNo, std::string text);
    std::int16_t LineNum() const;
    const CodeLine& Line(std::int16_t i) const { return lines_.at(static_cast<std::size_t>(i)); }

    // Memory.
    void AEraseMemorys();
    void AEraseMemory(std::int16_t i);
    const std::string& MemoryName(std::int16_t i) const { return Memory(i).Name; }
    std::int16_t MemoryTyp(std::int16_t i) const { return Memory(i).Typ; }
    std::int16_t MemoryNI(std::int16_t i) const { return Memory(i).NI; }
    std::int16_t MemoryNJ(std::int16_t i) const { return Memory(i).NJ; }
    std::int16_t MemoryLn(std::int16_t i) const { return Memory(i).Ln; }
    void AImidateGetMemoryInformation(std::int16_t i, std::string& name, std::int16_t& typ,
                                      std::int16_t& ni, std::int16_t& nj, double& re,
                                      double& im) const;
    // Element access; a flat index of 65535 (or -1) means "compute it from
    // i and j" and receives the computed index.
    bool AVariableValueDirectGet(std::int16_t k, std::int16_t i, std::int16_t j, std::int32_t& flat,
                                 double& re, double& im) const;
    bool AzVariableValueDirectSet(std::int16_t k, std::int16_t i, std::int16_t j,
                                  std::int32_t& flat, double re, double im);

    // Looks a name up: own memory, parameters, globals; the immediate page
    // falls back on "Main".
    struct Found {
        NameKind kind = NameKind::None;
        ClsCode* page = nullptr;
        std::int16_t index = -1;  // memory index in `page`
        std::int16_t slot = -1;   // parameter slot of a parameter
        std::int16_t typ = 0;
        std::int16_t ni = 0;
        std::int16_t nj = 0;
        Complex value;  // element 0, or the parameter's value
    };
    Found AzIsVariableSearch(std::string_view name);

    // Declares each item (name, name(a) or name(a,b)) in this page's memory.
    bool AStateMentDimension(std::span<const std::string_view> items);

    // Expressions and immediate statements in this page's scope.
    bool ACalcu(std::string_view text, double& re, double& im);
    void ACalcuWithMemoryStore(std::string_view expression, std::string_view target, double& re,
                               double& im, bool& ok);
    bool AImidateStatement(std::string_view text, double& re, double& im);
    // name = value on the immediate line for a value already computed: the
    // variable ACalcuWithMemoryStore finds or makes for a plain name, and the
    // element it stores into (the first).
    bool StoreOwnValue(std::string_view name, const Complex& value);

    // Analysis, execution and function definition passes.
    bool APc01BotomLine() const;
    bool APc01CodeAnalize();
    bool APc02CodeExecute(double& re, double& im);
    bool APc03DefineFunction(std::string_view header);
    void ACopyToArgment(std::int16_t index, const CallArgument& argument);

    // The reason of the last failure on this page; cleared before work whose
    // own failure is to be told apart from an earlier one.
    const std::string& ErrorText() const { return errorText_; }
    // Called before every statement runs: clears without building a text.
    void ClearErrorText() {
        errorText_.clear();
        errorKind_ = ProgramErrorKind::Run;
        errorArgument_.clear();
    }

    // NameScope: how expressions on this page read names and call functions.
    bool ReadVariable(Evaluator& evaluator, std::string_view name,
                      std::span<const SubscriptScan> subscripts, Place& place,
                      Complex& value) override;
    bool CallUserFunction(Evaluator& evaluator, std::string_view call, Complex& value) override;
    bool CallMatrixFunction(std::size_t index, std::span<const std::string_view> arguments,
                            Complex& value) override;
    ScanCache& Scans() override;

  protected:
    void StopPoint() override { CheckStop(); }

  private:
    enum class Flow { Normal, End, Fail };  // End: the page finished early (End, Return)

    // Memory (code_page_memory.cpp).
    const MemoryRec& Memory(std::int16_t i) const {
        if (i < 0 || i >= NumofMemory()) RaiseFault(FaultCode::SubscriptOutOfRange);
        return memory_[static_cast<std::size_t>(i)];
    }
    MemoryRec& Memory(std::int16_t i) {
        return const_cast<MemoryRec&>(std::as_const(*this).Memory(i));
    }
    std::int16_t AppendVariable(std::string_view name, std::int16_t typ, std::int16_t ni,
                                std::int16_t nj);
    bool DeclareItem(std::string_view item);
    // This page's own variable of that name, -1 when there is none.
    std::int16_t OwnMemoryIndex(std::string_view name) const;
    bool ReportReserved(std::string_view name);
    // Lets window events run inside a program run and raises StopRequest
    // when the user has asked to stop.
    void CheckStop();
    // Tells the view where the run is and lets window events run.
    void LetEventsRun();
    Found ParameterFound(std::int16_t s);
    bool IsCurrent(const Place& place) const;  // filled in by this page, names unchanged
    // AzIsVariableSearch's answer by way of `place`; for a variable of
    // memory only kind, page and index are filled in.
    Found Locate(std::string_view name, Place& place);
    // The variable a lookup refers to, and the parameter slot it went through.
    MemoryRec* Referent(const Found& found, CallArgument** slot);
    // A subscript's value as a 16-bit index, from its scan or (for a call's
    // argument and a Dim) from its text; an empty text counts as "0".
    bool EvalSubscript(Evaluator& evaluator, const SubscriptScan& subscript, std::int16_t& index);
    bool EvalSubscript(Evaluator& evaluator, std::string_view text, std::int16_t& index);
    // The variable a lookup refers to and the flat index of the element its
    // subscripts address; nullptr when a subscript fails or the element
    // does not exist.
    MemoryRec* Element(Evaluator& evaluator, const Found& found,
                       std::span<const SubscriptScan> subscripts, std::int32_t& flat);

    // Analysis (code_page_analysis.cpp).
    bool Fail(std::string reason);
    bool AnalyseLine(std::int16_t& i);
    bool AnalyseAssignment(std::string_view text, bool& isAssignment);
    bool AnalyseFor(std::int16_t& i, std::string_view rest);
    bool AnalyseDo(std::int16_t& i, std::string_view rest);
    bool AnalyseIf(std::int16_t& i, std::string_view rest);
    bool AnalyseSelect(std::int16_t& i, std::string_view rest);
    bool AnalyseExit(std::int16_t i, StatementKind code);
    bool EndsPage(std::int16_t i) const;
    void MarkLine(std::int16_t i, StatementKind kind, std::int16_t codeIndex, std::int16_t link);

    // Execution (code_page_run.cpp).
    Flow RunLoop(std::int16_t& line, std::int16_t first, std::int16_t last);
    Flow Dispatch(const CodeLine& stored, std::int16_t& line);
    // A statement's parts evaluate with the evaluator of its Dispatch, which
    // tells why a part failed.
    bool RunFor(Evaluator& evaluator, ForBlock& block, std::int16_t& line);
    void NextTurn(ForBlock& block, std::int16_t& line);
    bool RunDo(Evaluator& evaluator, const DoBlock& block, std::int16_t& line, bool isLoop);
    Flow RunBranch(Evaluator& evaluator, std::int16_t& line,
                   const std::vector<std::int16_t>& boundaries,
                   const std::vector<ConditionCode>& conditions, std::int16_t branch);
    bool Assign(Evaluator& evaluator, const StatementCode& code, Complex& assigned);
    bool Store(Evaluator& evaluator, const StatementCode& code, const Complex& assigned);
    // Tells the view of the failed statement, as its statement or as the
    // call argument that failed in it.
    void ReportRunError(std::int16_t line);
    StatementPlace PlaceOf(std::int16_t line) const;
    void SetErrorText(std::string reason);

    // Functions and calls (code_page_calls.cpp).
    bool AnalyseCall(std::string_view text, std::int16_t& entry);
    bool BindArgument(std::string_view text, CallArgument& argument);
    bool RunCall(Evaluator& evaluator, CallEntry& entry, Complex& result);
    bool PrepareArgument(Evaluator& evaluator, CallArgument& argument, ProgramErrorKind& failure);
    void FailArgument(ProgramErrorKind kind, const std::string& argument);

    Interpreter& session_;
    std::string pageName_;
    std::int16_t pageIndex_ = 0;
    bool analized_ = false;
    std::vector<CodeLine> lines_;
    std::vector<MemoryRec> memory_;
    std::vector<CallArgument> arguments_;
    std::vector<CallEntry> calls_;
    std::vector<ForBlock> fors_;
    std::vector<DoBlock> dos_;
    std::vector<IfBlock> ifs_;
    std::vector<SelectBlock> selects_;
    std::vector<StatementCode> statements_;
    std::int16_t currentLine_ = 0;
    // Frames of this page that are running, and whether its analysis is in
    // progress. A running page keeps the tables its frames jump through: it
    // is analysed again only once none of them is left.
    int runningFrames_ = 0;
    bool analysing_ = false;
    std::int16_t innermostFor_ = -1;
    std::int16_t innermostDo_ = -1;
    std::int16_t errorLine_ = 0;
    std::string errorText_;
    // A call's argument that failed, and how; errorText_ then says so in
    // words. Run when the failure is not an argument's.
    ProgramErrorKind errorKind_ = ProgramErrorKind::Run;
    std::string errorArgument_;
    Complex valueArea_;
    std::optional<ComplexArray> arrayResult_;  // of the last matrix function
};

}  // namespace lapdesk
