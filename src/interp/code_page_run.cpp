// Execution: the run loop over a page's analysed lines, dispatching on each
// line's kind and jumping through the lines that analysis recorded.
#include <new>
#include <string>

#include "expr/evaluator.h"
#include "expr/keywords.h"
#include "expr/nesting_guard.h"
#include "expr/text_scan.h"
#include "expr/vocabulary.h"
#include "interp/code_page.h"
#include "interp/interpreter.h"
#include "interp/run_limits.h"
#include "interp/text_helpers.h"

namespace lapdesk {

namespace {

// Nesting levels kept free below a call for the expressions and branches
// that lead to the next call.
constexpr std::size_t kLevelsBelowACall = 100;

// Holds one level of user-function nesting for the length of a page run. Its
// stack budget is below the evaluator's, and it keeps levels free for the
// evaluator, so runaway recursion ends here, with one message, rather than
// as an expression error at every level.
class CallLevel {
  public:
    explicit CallLevel(Interpreter& session)
        : session_(session), ok_(session.EnterCall()), stack_(NestingGuard::kStackBudget * 2 / 3) {}
    ~CallLevel() { session_.LeaveCall(); }
    CallLevel(const CallLevel&) = delete;
    CallLevel& operator=(const CallLevel&) = delete;
    bool ok() const { return ok_ && stack_.Admits(kLevelsBelowACall); }

  private:
    Interpreter& session_;
    bool ok_;
    NestingGuard stack_;
};

// Counts the frames of a page that are running, for as long as one runs.
class RunningFrame {
  public:
    explicit RunningFrame(int& frames) : frames_(++frames) {}
    ~RunningFrame() { --frames_; }
    RunningFrame(const RunningFrame&) = delete;
    RunningFrame& operator=(const RunningFrame&) = delete;

  private:
    int& frames_;
};

// True when the expression is one matrix function call as a whole, whose
// array result is then stored into the target.
bool IsWholeMatrixCall(std::string_view expression, std::size_t& row) {
    expression = Trim(expression);
    const auto found = FindMatrixFunction(expression);
    if (!found) return false;
    const std::size_t open = GetVocabulary().matrixFunctions[*found].name.size() - 1;
    if (!BracketClosesAtEnd(expression, open)) return false;
    row = *found;
    return true;
}

}  // namespace

bool ClsCode::APc02CodeExecute(double& re, double& im) {
    const bool outermost = !session_.Running();
    CallLevel level(session_);
    valueArea_ = {};
    std::string fault;
    Flow flow = Flow::Fail;
    try {
        if (!level.ok()) throw CallsTooDeep{};
        // A page already running keeps the tables its frames use, even when
        // a new global has cleared its flag meanwhile; it is analysed again
        // at a call after they have all finished.
        if (!analized_ && runningFrames_ == 0 && !APc01CodeAnalize()) return false;
        RunningFrame frame(runningFrames_);
        std::int16_t line = 0;
        currentLine_ = -1;
        if (!session_.view().StopRequested()) flow = RunLoop(line, 0, Sub16(LineNum(), 1));
    } catch (const StopRequest&) {
        return false;  // every level returns quietly: the stop request stays set
    } catch (const RuntimeFault& error) {
        fault = error.description();
    } catch (const CallsTooDeep&) {
        if (!outermost) throw;
        fault = RuntimeFault(FaultCode::StackSpace).description();
    } catch (const std::bad_alloc&) {
        fault = "メモリが不足しています。";
    }
    // However the run ends, the view is left showing where it was.
    if (outermost || !fault.empty()) session_.ShowRunningStatement();
    if (!fault.empty()) {
        const StatementPlace place = currentLine_ >= 0 ? PlaceOf(currentLine_) : StatementPlace{};
        session_.view().ShowProgramError({ProgramErrorKind::AbnormalEnd, place, fault});
        return false;
    }
    re = valueArea_.Re;
    im = valueArea_.Im;
    return flow != Flow::Fail;
}

ClsCode::Flow ClsCode::RunLoop(std::int16_t& line, std::int16_t first, std::int16_t last) {
    // The lines stay as they are while the page runs, so the range is
    // checked once.
    if (last >= LineNum()) last = Sub16(LineNum(), 1);
    // A stop request can only have come while events ran (or before the
    // page started), so it is looked at then.
    for (line = first; line >= first && line <= last; line = Add16(line, 1)) {
        currentLine_ = line;
        session_.NoteStatement(pageIndex_, line);
        if (session_.PollDue()) {
            LetEventsRun();
            if (session_.view().StopRequested()) return Flow::Fail;
        }
        const CodeLine& stored = lines_[static_cast<std::size_t>(line)];
        if (stored.Kind == kw::Next) {
            // The loop's turn: it can fail only by a fault, so it needs no
            // evaluator and leaves no reason.
            NextTurn(fors_[static_cast<std::size_t>(stored.CodeIndex)], line);
            continue;
        }
        const Flow flow = Dispatch(stored, line);
        if (flow != Flow::Normal) return flow;
    }
    return Flow::Normal;
}

ClsCode::Flow ClsCode::Dispatch(const CodeLine& stored, std::int16_t& line) {
    // Read before anything runs, so that nothing below depends on the
    // line's record staying where it is.
    const StatementKind kind = stored.Kind;
    const std::int16_t link = stored.Link;
    const auto index = static_cast<std::size_t>(stored.CodeIndex);
    const KeptScan<SumScan>* value = stored.Value.get();  // Return and bare call
    ClearErrorText();
    bool ok = true;
    Evaluator evaluator(*this);
    switch (kind) {
        case kw::End:
        case kw::ExitFunction:
            return Flow::End;
        case kw::Call: {
            Complex ignored;
            ok = RunCall(evaluator, calls_[index], ignored);
            break;
        }
        case kw::For:
            ok = RunFor(evaluator, fors_[index], line);
            break;
        case kw::ExitFor:
            line = fors_[index].NextLine;
            break;
        case kw::Do:
            ok = RunDo(evaluator, dos_[index], line, false);
            break;
        case kw::Loop:
            ok = RunDo(evaluator, dos_[index], line, true);
            break;
        case kw::ExitDo:
            line = dos_[index].LoopLine;
            break;
        case kw::If:
        case kw::Else:
        case kw::ElseIf: {
            const IfBlock& block = ifs_[index];
            const Flow flow = RunBranch(evaluator, line, block.Boundaries, block.Conditions, link);
            if (flow == Flow::Fail) ok = false;
            if (flow == Flow::End) return flow;
            break;
        }
        case kw::Case:
        case kw::CaseElse: {
            const SelectBlock& block = selects_[index];
            const Flow flow = RunBranch(evaluator, line, block.Boundaries, block.Conditions, link);
            if (flow == Flow::Fail) ok = false;
            if (flow == Flow::End) return flow;
            break;
        }
        case kw::Return:
            if (evaluator.EvalSum(value->scan, valueArea_)) return Flow::End;
            ok = false;
            break;
        case kw::BareCall:
            ok = evaluator.EvalSum(value->scan, valueArea_);
            break;
        case kw::Assignment: {
            Complex assigned;
            ok = Assign(evaluator, statements_[index], assigned);
            break;
        }
        default:
            break;
    }
    if (ok) return Flow::Normal;
    if (errorText_.empty()) SetErrorText(evaluator.failure());
    ReportRunError(line);
    return Flow::Fail;
}

void ClsCode::ReportRunError(std::int16_t line) {
    if (session_.view().StopRequested()) return;  // a stop is not an error
    session_.ShowRunningStatement();
    session_.view().ShowProgramError({errorKind_, PlaceOf(line), errorArgument_});
}

StatementPlace ClsCode::PlaceOf(std::int16_t line) const {
    if (line < 0 || line >= LineNum()) return {pageName_, line, -1, {}};
    const CodeLine& stored = Line(line);
    return {pageName_, line, session_.SourceLineOf(stored.LnNo), stored.Text};
}

// For: the counter lives in the block, so assignments to the loop variable
// inside the body do not change the number of passes.
bool ClsCode::RunFor(Evaluator& evaluator, ForBlock& block, std::int16_t& line) {
    Complex start, end, step;
    if (!evaluator.EvalSum(block.Start->scan, start) || !evaluator.EvalSum(block.End->scan, end) ||
        !evaluator.EvalSum(block.Step->scan, step)) {
        return false;
    }
    block.Counter = start.Re;
    block.EndValue = end.Re;
    block.StepValue = step.Re;
    // Looked up only now: a function called by the texts may have given the
    // variable new storage (a matrix result).
    Memory(block.VariableIndex).Values[0] = {start.Re, 0.0};
    const bool skip = step.Re > 0 ? start.Re > end.Re : start.Re < end.Re;
    if (skip) line = block.NextLine;
    return true;
}

void ClsCode::NextTurn(ForBlock& block, std::int16_t& line) {
    block.Counter = Checked(block.Counter + block.StepValue);
    Memory(block.VariableIndex).Values[0] = {block.Counter, 0.0};
    const bool again =
        block.StepValue > 0 ? block.Counter <= block.EndValue : block.Counter >= block.EndValue;
    if (again) line = block.ForLine;
}

bool ClsCode::RunDo(Evaluator& evaluator, const DoBlock& block, std::int16_t& line, bool isLoop) {
    const StatementKind word = isLoop ? block.LoopWord : block.DoWord;
    const ConditionCode& condition = isLoop ? block.LoopCondition : block.DoCondition;
    bool truth = false;
    if (word != kw::NoKeyword && !evaluator.EvalCondition(condition->scan, truth)) return false;
    const bool whileHolds = word == kw::NoKeyword || (word == kw::While) == truth;
    if (!isLoop && !whileHolds) line = block.LoopLine;
    if (isLoop && whileHolds) line = Sub16(block.DoLine, 1);
    return true;
}

// Runs branch `branch` when its condition holds and then leaves the block;
// otherwise moves to the next boundary line so its condition is tried next.
ClsCode::Flow ClsCode::RunBranch(Evaluator& evaluator, std::int16_t& line,
                                 const std::vector<std::int16_t>& boundaries,
                                 const std::vector<ConditionCode>& conditions,
                                 std::int16_t branch) {
    const auto k = static_cast<std::size_t>(branch);
    const ConditionCode& condition = conditions[k];
    bool taken = condition == nullptr;
    if (!taken && !evaluator.EvalCondition(condition->scan, taken)) return Flow::Fail;
    if (!taken) {
        line = Sub16(boundaries[k], 1);
        return Flow::Normal;
    }
    // A taken branch runs one level deeper; past the limit the whole run
    // ends with one message, as runaway calls do.
    NestingGuard nesting;
    if (!nesting.ok()) throw CallsTooDeep{};
    std::int16_t inner = 0;
    const Flow flow = RunLoop(inner, Add16(line, 1), Sub16(boundaries[k], 1));
    if (flow != Flow::Normal) return flow;
    // Ran to the end of the branch: resume behind the block. Left it by a
    // jump (Exit For, Exit Do): resume where the jump pointed.
    line = inner == boundaries[k] ? boundaries.back() : Sub16(inner, 1);
    return Flow::Normal;
}

bool ClsCode::Assign(Evaluator& evaluator, const StatementCode& code, Complex& assigned) {
    arrayResult_.reset();
    std::string_view expression = code.Expression;
    const bool evaluated = code.ExpressionScan
                               ? evaluator.EvalSum(code.ExpressionScan->scan, assigned)
                               : evaluator.EvalSum(expression, assigned);
    if (!evaluated) {
        // A call inside the expression may have left why its argument
        // failed; that reason is kept, as for a Call statement.
        if (errorText_.empty()) SetErrorText(evaluator.failure());
        return false;
    }
    if (code.Target == TargetKind::Result) {
        valueArea_ = assigned;
        return true;
    }
    if (code.Target == TargetKind::Memory && !code.HasSubscripts() && !arrayResult_) {
        // The usual case, a plain variable of this page: its first element.
        if (code.TargetIndex < 0 || code.TargetIndex >= NumofMemory()) return false;
        memory_[static_cast<std::size_t>(code.TargetIndex)].Values[0] = assigned;
        return true;
    }
    return Store(evaluator, code, assigned);
}

// Every other target: a global, a parameter, an element, or a whole array
// that takes a matrix function's result.
bool ClsCode::Store(Evaluator& evaluator, const StatementCode& code, const Complex& assigned) {
    Found target{NameKind::Memory, this, code.TargetIndex, -1, 0, 0, 0, {}};
    if (code.Target == TargetKind::Global)
        target = {NameKind::Global, &session_.ImmediatePage(), code.TargetIndex, -1, 0, 0, 0, {}};
    if (code.Target == TargetKind::Parameter) {
        CallArgument& slot = arguments_.at(static_cast<std::size_t>(code.TargetIndex));
        if (slot.IsValue()) {
            slot.Value = assigned;
            return true;
        }
        target = {
            NameKind::VariableParameter, slot.Page, slot.Index, code.TargetIndex, 0, 0, 0, {}};
    }
    CallArgument* slot = nullptr;
    MemoryRec* rec = Referent(target, &slot);
    if (rec == nullptr) return false;
    std::size_t row = 0;
    // A parameter bound to a whole variable (not to one element) passes the
    // result on to that variable.
    const bool wholeVariable = slot == nullptr || slot->Flat < 0;
    if (arrayResult_ && !code.HasSubscripts() && wholeVariable &&
        IsWholeMatrixCall(code.Expression, row)) {
        // The target takes the result's dimensions and values.
        const ComplexArray& array = *arrayResult_;
        const MatrixResult shape = GetVocabulary().matrixFunctions[row].result;
        rec->Typ = shape == MatrixResult::Matrix ? 2 : 1;
        rec->NI = ToInt16(array.NI);
        rec->NJ = ToInt16(array.NJ);
        rec->Ln = Sub16(Mul16(Add16(rec->NI, 1), Add16(rec->NJ, 1)), 1);
        rec->Values = array.Values;
        if (slot != nullptr) {
            slot->NI = rec->NI;
            slot->NJ = rec->NJ;
            slot->Ln = rec->Ln;
        }
        return true;
    }
    std::int32_t flat = 0;  // a whole variable's first element
    if (slot != nullptr && slot->Flat >= 0) {
        flat = slot->Flat;
        if (flat > rec->Ln) return false;  // the array shrank while bound
    } else if (code.HasSubscripts()) {
        rec = Element(evaluator, target, code.Subscripts->scans, flat);
        if (rec == nullptr) {
            if (errorText_.empty()) SetErrorText(evaluator.failure());
            return false;
        }
    }
    rec->Values[static_cast<std::size_t>(flat)] = assigned;
    return true;
}

}  // namespace lapdesk
