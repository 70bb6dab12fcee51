// Analysis: classifies every line of a page, matches each block opener with
// its closing line, and builds the block and statement tables that
// execution jumps through.
#include <string>

#include "expr/keywords.h"
#include "expr/nesting_guard.h"
#include "expr/text_scan.h"
#include "expr/vocabulary.h"
#include "interp/code_page.h"
#include "interp/interpreter.h"
#include "interp/run_limits.h"
#include "interp/text_helpers.h"
#include "values/fault.h"

namespace lapdesk {

namespace {

StatementKind Classify(const CodeLine& line, std::string_view& rest) {
    return ClassifyStatement(line.Text, rest);
}

std::int16_t Count(std::size_t size) {
    return ToInt16(static_cast<long long>(size));
}

// [While cond | Until cond] after Do or Loop.
bool ConditionWord(std::string_view rest, StatementKind& word, ConditionCode& condition) {
    std::string_view after;
    const StatementKind code = ClassifyStatement(rest, after);
    if (code == kw::While || code == kw::Until) {
        word = code;
        condition = ScanCondition(after);
        return !Trim(after).empty();
    }
    word = kw::NoKeyword;
    condition.reset();
    return Trim(rest).empty();
}

}  // namespace

void ClsCode::SetErrorText(std::string reason) {
    errorText_ = std::move(reason);
    errorKind_ = ProgramErrorKind::Run;
    errorArgument_.clear();
}

bool ClsCode::Fail(std::string reason) {
    SetErrorText(std::move(reason));
    return false;
}

void ClsCode::MarkLine(std::int16_t i, StatementKind kind, std::int16_t codeIndex,
                       std::int16_t link) {
    CodeLine& line = lines_[static_cast<std::size_t>(i)];
    line.Kind = kind;
    line.CodeIndex = codeIndex;
    line.Link = link;
}

bool ClsCode::EndsPage(std::int16_t i) const {
    std::string_view rest;
    return i >= LineNum() || Classify(lines_[static_cast<std::size_t>(i)], rest) == kw::End;
}

bool ClsCode::APc01CodeAnalize() {
    // A Dim subscript of this page may call a function that calls the page
    // back; its tables are half built then, and a running page's tables are
    // in use, so neither is analysed (or run) from there.
    if (analysing_ || runningFrames_ > 0) {
        session_.view().Errmessage(pageName_ + ": 解析が終わる前に呼び出されました");
        return false;
    }
    analysing_ = true;
    struct AnalysisEnds {
        bool& flag;
        ~AnalysisEnds() { flag = false; }
    } analysisEnds{analysing_};
    calls_.clear();
    fors_.clear();
    dos_.clear();
    ifs_.clear();
    selects_.clear();
    statements_.clear();
    innermostFor_ = -1;
    innermostDo_ = -1;
    analized_ = false;
    bool ok = false;
    try {
        for (std::int16_t i = 0;; i = Add16(i, 1)) {
            if (i >= LineNum()) {
                errorLine_ = LineNum() > 0 ? Sub16(LineNum(), 1) : 0;
                Fail("Endが無い");
                break;
            }
            std::string_view rest;
            if (Classify(lines_[static_cast<std::size_t>(i)], rest) == kw::End) {
                MarkLine(i, kw::End, kNoEntry, kNoEntry);
                analized_ = ok = true;
                break;
            }
            if (!AnalyseLine(i)) break;
        }
    } catch (const RuntimeFault& fault) {
        Fail(fault.description());
    } catch (const StopRequest&) {
        return false;  // stopped while a Dim subscript ran: no message
    }
    if (ok) return true;
    session_.view().ShowProgramError({ProgramErrorKind::Analysis, PlaceOf(errorLine_), errorText_});
    return false;
}

bool ClsCode::AnalyseLine(std::int16_t& i) {
    ClearErrorText();
    errorLine_ = i;
    // Blocks nest by recursion here: a program nested too deep fails cleanly.
    NestingGuard guard;
    if (!guard.ok()) return Fail(RuntimeFault(FaultCode::StackSpace).description());
    lines_[static_cast<std::size_t>(i)].Kind = kw::NoKeyword;
    lines_[static_cast<std::size_t>(i)].Value.reset();
    const std::string text = lines_[static_cast<std::size_t>(i)].Text;
    std::string_view rest;
    const StatementKind code = ClassifyStatement(text, rest);
    std::vector<std::string_view> items;
    switch (code) {
        case kw::Dim:
            if (!SplitTopLevel(rest, ',', items) || !AStateMentDimension(items)) {
                return Fail(errorText_.empty() ? "Dim文" : errorText_);
            }
            MarkLine(i, code, kNoEntry, kNoEntry);
            return true;
        case kw::Global: {
            if (pageIndex_ > 0) return Fail("サブルーチンから大域変数は定義出来ません");
            ClsCode& global = session_.ImmediatePage();
            if (!SplitTopLevel(rest, ',', items) || !global.AStateMentDimension(items)) {
                return Fail(global.errorText_.empty() ? "Global文" : global.errorText_);
            }
            MarkLine(i, code, kNoEntry, kNoEntry);
            return true;
        }
        case kw::Call: {
            std::int16_t entry = 0;
            if (!AnalyseCall(rest, entry)) return false;
            MarkLine(i, code, entry, kNoEntry);
            return true;
        }
        case kw::For:
            return AnalyseFor(i, rest);
        case kw::Do:
            return AnalyseDo(i, rest);
        case kw::If:
            return AnalyseIf(i, rest);
        case kw::Select:
            return AnalyseSelect(i, rest);
        case kw::Next:
            return Fail("Forが無い");
        case kw::Loop:
            return Fail("Doが無い");
        case kw::EndIf:
            return Fail("IFが無い");
        case kw::EndSelect:
            return Fail("SelectCaseが無い");
        case kw::ExitFor:
        case kw::ExitDo:
            return AnalyseExit(i, code);
        case kw::Return:
            // The value starts at the eighth character, after "Return ".
            lines_[static_cast<std::size_t>(i)].Value =
                ScanExpression(TrimLeft(text.size() > 7 ? std::string_view(text).substr(7) : ""));
            MarkLine(i, code, kNoEntry, kNoEntry);
            return true;
        case kw::Function:
        case kw::ExitFunction:
            MarkLine(i, code, kNoEntry, kNoEntry);
            return true;
        default:
            break;
    }
    bool isAssignment = false;
    if (!AnalyseAssignment(text, isAssignment)) return false;
    if (isAssignment) {
        MarkLine(i, kw::Assignment, Sub16(Count(statements_.size()), 1), kNoEntry);
        return true;
    }
    std::int16_t entry = 0;
    if (AnalyseCall(text, entry)) {
        lines_[static_cast<std::size_t>(i)].Value = ScanExpression(text);
        MarkLine(i, kw::BareCall, entry, kNoEntry);
        return true;
    }
    return Fail("無効なコード");
}

// target = expression: the target is the page's own name (its result), a
// variable of the page, a parameter, a global, or a new variable of the page.
bool ClsCode::AnalyseAssignment(std::string_view text, bool& isAssignment) {
    const std::size_t equals = FindTopLevel(text, '=');
    isAssignment = equals != std::string_view::npos;
    if (!isAssignment) return true;
    const std::string_view target = Trim(text.substr(0, equals));
    StatementCode code{TargetKind::Result, 0, {}, std::string(Trim(text.substr(equals + 1))), {}};
    if (!SameName(target, pageName_, session_.caseSensitive())) {
        NameWithSubscripts parsed;
        if (!SplitNameAndSubscripts(target, parsed) || ReportReserved(parsed.name)) {
            return Fail("代入先が不正");
        }
        const Found found = AzIsVariableSearch(parsed.name);
        if (found.kind == NameKind::Memory || found.kind == NameKind::Global) {
            code.Target = found.kind == NameKind::Memory ? TargetKind::Memory : TargetKind::Global;
            code.TargetIndex = found.index;
        } else if (IsParameter(found.kind)) {
            code.Target = TargetKind::Parameter;
            code.TargetIndex = found.slot;
        } else if (found.kind == NameKind::None && parsed.subscripts.empty() &&
                   pageIndex_ != kImmediatePageIndex) {
            code.Target = TargetKind::Memory;
            code.TargetIndex = AppendVariable(parsed.name, 0, 0, 0);
        } else {
            return Fail("代入先が不正");
        }
        code.Subscripts = std::make_shared<const TargetSubscripts>(parsed.subscripts);
    }
    RequireRoomForOneMore(Count(statements_.size()));
    code.ExpressionScan = ScanExpression(code.Expression);
    statements_.push_back(std::move(code));
    return true;
}

// For name = start To end [Step step] ... Next
bool ClsCode::AnalyseFor(std::int16_t& i, std::string_view rest) {
    const std::size_t to = FindWordNoCase(rest, "to");
    const std::size_t equals = to == 0 ? std::string_view::npos : rest.substr(0, to - 1).find('=');
    if (equals == std::string_view::npos) return Fail("For文");
    const std::string_view name = Trim(rest.substr(0, equals));
    const std::string_view range = rest.substr(to - 1 + 2);
    const std::size_t step = FindWordNoCase(range, "Step");
    ForBlock block;
    block.ForLine = i;
    block.Start = ScanExpression(Trim(rest.substr(equals + 1, to - 1 - equals - 1)));
    block.End = ScanExpression(Trim(step == 0 ? range : range.substr(0, step - 1)));
    block.Step = ScanExpression(step == 0 ? "1" : Trim(range.substr(step - 1 + 4)));
    if (!IsValidName(name) || ReportReserved(name)) return Fail("For文");
    block.VariableIndex = -1;
    for (std::int16_t k = 0; k < NumofMemory(); ++k) {
        if (SameName(MemoryName(k), name, session_.caseSensitive())) block.VariableIndex = k;
        if (block.VariableIndex >= 0) break;
    }
    if (block.VariableIndex < 0) block.VariableIndex = AppendVariable(name, 0, 0, 0);
    const std::int16_t entry = Count(fors_.size());
    RequireRoomForOneMore(entry);
    fors_.push_back(std::move(block));
    const std::int16_t forLine = i;
    const std::int16_t outer = innermostFor_;
    innermostFor_ = entry;
    MarkLine(i, kw::For, entry, kNoEntry);
    for (i = Add16(i, 1);; i = Add16(i, 1)) {
        if (EndsPage(i)) {
            errorLine_ = forLine;
            return Fail("Nextが無い");
        }
        std::string_view after;
        if (Classify(lines_[static_cast<std::size_t>(i)], after) == kw::Next) break;
        if (!AnalyseLine(i)) return false;
    }
    MarkLine(i, kw::Next, entry, kNoEntry);
    fors_[static_cast<std::size_t>(entry)].NextLine = i;
    innermostFor_ = outer;
    return true;
}

// Do [While cond | Until cond] ... Loop [While cond | Until cond]
bool ClsCode::AnalyseDo(std::int16_t& i, std::string_view rest) {
    DoBlock block;
    block.DoLine = i;
    if (!ConditionWord(rest, block.DoWord, block.DoCondition)) return Fail("Do文");
    const std::int16_t entry = Count(dos_.size());
    RequireRoomForOneMore(entry);
    dos_.push_back(std::move(block));
    const std::int16_t doLine = i;
    const std::int16_t outer = innermostDo_;
    innermostDo_ = entry;
    MarkLine(i, kw::Do, entry, kNoEntry);
    std::string_view after;
    for (i = Add16(i, 1);; i = Add16(i, 1)) {
        if (EndsPage(i)) {
            errorLine_ = doLine;
            return Fail("Loopが無い");
        }
        if (Classify(lines_[static_cast<std::size_t>(i)], after) == kw::Loop) break;
        if (!AnalyseLine(i)) return false;
    }
    DoBlock& done = dos_[static_cast<std::size_t>(entry)];
    errorLine_ = i;
    if (!ConditionWord(after, done.LoopWord, done.LoopCondition)) return Fail("Loop文");
    done.LoopLine = i;
    MarkLine(i, kw::Loop, entry, kNoEntry);
    innermostDo_ = outer;
    return true;
}

bool ClsCode::AnalyseExit(std::int16_t i, StatementKind code) {
    const std::int16_t innermost = code == kw::ExitFor ? innermostFor_ : innermostDo_;
    if (innermost < 0) return Fail(code == kw::ExitFor ? "Forが無い" : "Doが無い");
    MarkLine(i, code, innermost, kNoEntry);
    return true;
}

namespace {

// The condition before "Then"; nothing may follow "Then" on the line.
bool ThenCondition(std::string_view rest, ConditionCode& condition) {
    const std::size_t then = FindWordNoCase(rest, "Then");
    if (then == 0 || !Trim(rest.substr(then - 1 + 4)).empty()) return false;
    const std::string_view text = Trim(rest.substr(0, then - 1));
    condition = ScanCondition(text);
    return !text.empty();
}

}  // namespace

// If cond Then ... [ElseIf cond Then ...] [Else ...] End If
bool ClsCode::AnalyseIf(std::int16_t& i, std::string_view rest) {
    IfBlock block;
    ConditionCode condition;
    if (!ThenCondition(rest, condition)) return Fail("IF文判別式");
    block.Conditions.push_back(condition);
    const std::int16_t entry = Count(ifs_.size());
    RequireRoomForOneMore(entry);
    ifs_.push_back(std::move(block));
    const std::int16_t ifLine = i;
    MarkLine(i, kw::If, entry, 0);
    for (i = Add16(i, 1);; i = Add16(i, 1)) {
        if (EndsPage(i)) {
            errorLine_ = ifLine;
            return Fail("Endifが無い");
        }
        std::string_view after;
        const StatementKind code = Classify(lines_[static_cast<std::size_t>(i)], after);
        IfBlock& open = ifs_[static_cast<std::size_t>(entry)];
        const std::int16_t branch = Count(open.Boundaries.size() + 1);
        if (code == kw::ElseIf || code == kw::Else || code == kw::EndIf) {
            open.Boundaries.push_back(i);
            MarkLine(i, code, entry, branch);
            if (code == kw::EndIf) return true;
            if (code == kw::Else) {
                open.Conditions.emplace_back();
            } else if (ThenCondition(after, condition)) {
                open.Conditions.push_back(condition);
            } else {
                errorLine_ = i;
                return Fail("IF文判別式");
            }
            continue;
        }
        if (!AnalyseLine(i)) return false;
    }
}

// Select Case selector ... Case v1, v2 ... [Case Else ...] End Select
bool ClsCode::AnalyseSelect(std::int16_t& i, std::string_view rest) {
    std::string_view selectorText;
    if (ClassifyStatement(rest, selectorText) != kw::Case || Trim(selectorText).empty()) {
        return Fail("Select Case文");
    }
    SelectBlock block;
    block.Selector = std::string(Trim(selectorText));
    const std::int16_t entry = Count(selects_.size());
    RequireRoomForOneMore(entry);
    selects_.push_back(std::move(block));
    const std::int16_t selectLine = i;
    MarkLine(i, kw::Select, entry, kNoEntry);
    for (i = Add16(i, 1);; i = Add16(i, 1)) {
        if (EndsPage(i)) {
            errorLine_ = selectLine;
            return Fail("EndSelectが無い");
        }
        std::string_view after;
        const StatementKind code = Classify(lines_[static_cast<std::size_t>(i)], after);
        SelectBlock& open = selects_[static_cast<std::size_t>(entry)];
        if (code != kw::Case && code != kw::CaseElse && code != kw::EndSelect) {
            if (!AnalyseLine(i)) return false;
            continue;
        }
        if (!open.Conditions.empty() || code == kw::EndSelect) open.Boundaries.push_back(i);
        MarkLine(i, code, entry, Count(open.Conditions.size()));
        if (code == kw::EndSelect) return true;
        if (code == kw::CaseElse) {
            open.Conditions.emplace_back();
            continue;
        }
        // Case 1, 3 tests selector=1 Or selector=3; a value with "=" in it
        // (>=5) follows the selector directly.
        errorLine_ = i;
        std::vector<std::string_view> values;
        if (!SplitTopLevel(after, ',', values)) return Fail("Case文値");
        std::string condition;
        for (std::string_view value : values) {
            value = Trim(value);
            if (value.empty()) return Fail("Case文値");
            if (!condition.empty()) condition += " Or ";
            condition += open.Selector;
            if (value.find('=') == std::string_view::npos) condition += "=";
            condition += value;
        }
        open.Conditions.push_back(ScanCondition(condition));
    }
}

}  // namespace lapdesk
