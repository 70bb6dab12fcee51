// A page's identity, its stored lines, and its immediate statements.
#include "interp/code_page.h"

#include "expr/evaluator.h"
#include "expr/keywords.h"
#include "expr/text_scan.h"
#include "expr/vocabulary.h"
#include "interp/interpreter.h"
#include "interp/run_limits.h"
#include "interp/text_helpers.h"
#include "values/builtins.h"

namespace lapdesk {

namespace {

constexpr std::string_view kStopped = "中断しました";

}  // namespace

ClsCode::ClsCode(Interpreter& session) : session_(session) {
    SetNamesGeneration(session.NamesGenerationCounter());
    session_.NamesChanged();
}

ClsCode::~ClsCode() {
    session_.NamesChanged();  // a later page may take this one's address
}

void ClsCode::SetPageIndex(std::int16_t index) {
    pageIndex_ = index;
    session_.NamesChanged();
}

void ClsCode::SetPageName(std::string name) {
    pageName_ = std::move(name);
    session_.NamesChanged();
    if (SameWord(pageName_, "Imidate")) {
        pageIndex_ = kImmediatePageIndex;
        session_.RegisterGlobalPage(*this);
        ReseedRandom();
    }
}

void ClsCode::SetAnalized(bool analized) {
    analized_ = analized;
    if (pageIndex_ != kImmediatePageIndex || analized) return;
    for (std::int16_t p = 0; p < session_.PageCount(); ++p)
        session_.Page(p).analized_ = false;
}

std::int16_t ClsCode::NumofArg() const {
    return static_cast<std::int16_t>(arguments_.size());
}
std::int16_t ClsCode::LineNum() const {
    return static_cast<std::int16_t>(lines_.size());
}

std::string ClsCode::Code(std::int16_t i, std::int16_t& lnNo) const {
    if (i < 0 || i >= LineNum()) return {};
    lnNo = lines_[static_cast<std::size_t>(i)].LnNo;
    return lines_[static_cast<std::size_t>(i)].Text;
}

void ClsCode::SetCode(std::int16_t i, std::int16_t lnNo, std::string text) {
    if (i >= 0 && i < LineNum()) {
        lines_[static_cast<std::size_t>(i)].Text = std::move(text);
        lines_[static_cast<std::size_t>(i)].LnNo = lnNo;
    } else {
        RequireRoomForOneMore(LineNum());  // a page holds at most 32767 lines
        lines_.push_back(CodeLine{std::move(text), lnNo});
    }
    SetAnalized(false);
}

bool ClsCode::APc01BotomLine() const {
    if (lines_.empty()) return false;
    std::string_view rest;
    return ClassifyStatement(lines_.back().Text, rest) == kw::End;
}

bool ClsCode::ACalcu(std::string_view text, double& re, double& im) {
    Evaluator evaluator(*this);
    Complex value;
    try {
        if (!evaluator.EvalSum(text, value)) {
            // A call that failed at an argument has said which one.
            if (errorText_.empty()) {
                SetErrorText(evaluator.failure().empty() ? "式が正しくありません"
                                                         : evaluator.failure());
            }
            return false;
        }
    } catch (const RuntimeFault& fault) {
        SetErrorText(fault.description());
        return false;
    } catch (const StopRequest&) {
        SetErrorText(std::string(kStopped));
        return false;
    }
    re = value.Re;
    im = value.Im;
    return true;
}

// target = expression on the immediate line: the target is looked up in this
// page's own memory only; an unknown plain name becomes a new variable.
void ClsCode::ACalcuWithMemoryStore(std::string_view expression, std::string_view target,
                                    double& re, double& im, bool& ok) {
    ok = false;
    NameWithSubscripts parsed;
    if (Trim(target).empty() || !SplitNameAndSubscripts(target, parsed)) {
        SetErrorText("代入先が不正");
        return;
    }
    if (ReportReserved(parsed.name)) return;
    try {
        std::int16_t index = OwnMemoryIndex(parsed.name);
        if (index < 0) {
            if (!parsed.subscripts.empty()) {
                SetErrorText("代入先が不正");
                return;
            }
            index = AppendVariable(parsed.name, 0, 0, 0);
        }
        StatementCode code{TargetKind::Memory,
                           index,
                           std::make_shared<const TargetSubscripts>(parsed.subscripts),
                           std::string(Trim(expression)),
                           {}};
        Complex assigned;
        Evaluator evaluator(*this);
        ClearErrorText();
        ok = Assign(evaluator, code, assigned);
        re = assigned.Re;
        im = assigned.Im;
    } catch (const RuntimeFault& fault) {
        SetErrorText(fault.description());
        ok = false;
    } catch (const StopRequest&) {
        SetErrorText(std::string(kStopped));
        ok = false;
    }
}

bool ClsCode::StoreOwnValue(std::string_view name, const Complex& value) {
    if (ReportReserved(name)) return false;
    try {
        std::int16_t index = OwnMemoryIndex(name);
        if (index < 0) index = AppendVariable(name, 0, 0, 0);
        arrayResult_.reset();
        ClearErrorText();
        Memory(index).Values[0] = value;
        return true;
    } catch (const RuntimeFault& fault) {
        SetErrorText(fault.description());
        return false;
    }
}

bool ClsCode::AImidateStatement(std::string_view text, double& re, double& im) {
    text = Trim(text);
    if (text.find('=') == std::string_view::npos) {
        const std::size_t blank = text.find_first_of(" \t");
        const std::string_view word = text.substr(0, blank);
        if (!SameWord(word, "Global") && !SameWord(word, "Dim")) return false;
        std::vector<std::string_view> items;
        const std::string_view rest = blank == std::string_view::npos ? "" : text.substr(blank);
        if (!SplitTopLevel(rest, ',', items)) return false;
        try {
            return AStateMentDimension(items);
        } catch (const StopRequest&) {
            SetErrorText(std::string(kStopped));
            return false;
        }
    }
    const std::size_t equals = FindTopLevel(text, '=');
    if (equals == std::string_view::npos) return false;
    bool ok = false;
    ACalcuWithMemoryStore(Trim(text.substr(equals + 1)), Trim(text.substr(0, equals)), re, im, ok);
    return ok;
}

}  // namespace lapdesk
