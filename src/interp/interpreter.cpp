// The program driver: cuts the program text into statements, distributes
// them over "Main" and one page per function, analyses and runs them, and
// evaluates the immediate line.
#include "interp/interpreter.h"

#include <string>

#include "expr/text_scan.h"
#include "expr/vocabulary.h"
#include "interp/text_helpers.h"
#include "values/fault.h"
#include "values/vector_registers.h"

namespace lapdesk {

namespace {

// User-function calls may nest this deep (the stack guard may end it sooner).
constexpr int kMaxCallDepth = 1000;

// Why the brackets of a line do not pair up; empty when they do.
std::string_view BracketFault(std::string_view line) {
    int depth = 0;
    for (char c : line) {
        if (c == '(') ++depth;
        if (c == ')' && --depth < 0) return "括弧が対応していません";
    }
    return depth > 0 ? "括弧が閉じていません" : "";
}

constexpr std::uint32_t kAnalysingColour = 0xFFFFC0;
constexpr std::uint32_t kReadyColour = 0x80FFFF;

// Statements of the program text: lines at the line break, the comment cut
// at the line's last apostrophe, statements at ":". Blank statements are
// left out. `lines` gets the 0-based line each statement stands on.
std::vector<std::string> CutStatements(std::string_view text, std::vector<std::int32_t>& lines) {
    std::vector<std::string> statements;
    lines.clear();
    for (std::int32_t lineNumber = 0; !text.empty(); ++lineNumber) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        const std::size_t apostrophe = line.rfind('\'');
        if (apostrophe != std::string_view::npos) line = line.substr(0, apostrophe);
        std::size_t start = 0;
        for (;;) {
            const std::size_t colon = line.find(':', start);
            const std::string_view piece = Trim(line.substr(start, colon - start));
            if (!piece.empty() && piece.front() != '\'') {
                statements.emplace_back(piece);
                lines.push_back(lineNumber);
            }
            if (colon == std::string_view::npos) break;
            start = colon + 1;
        }
    }
    return statements;
}

bool BeginsFunction(std::string_view statement) {
    return StartsWithWord(statement, "Function ");
}

}  // namespace

// The tables are filled on first use; the angle unit and the random seed,
// which belong to the whole process, are left as another session set them.
Interpreter::Interpreter(InterpreterView& view) : view_(&view) {
    GetVocabulary();
}

Interpreter::~Interpreter() = default;

ClsCode& Interpreter::ImmediatePage() {
    if (immediate_ == nullptr) {
        immediateOwned_ = std::make_unique<ClsCode>(*this);
        immediateOwned_->SetPageName("Imidate");
    }
    return *immediate_;
}

void Interpreter::RegisterGlobalPage(ClsCode& page) {
    immediate_ = &page;
}

std::int16_t Interpreter::PageCount() const {
    return static_cast<std::int16_t>(pages_.size());
}

ClsCode& Interpreter::Page(std::int16_t index) {
    return *pages_.at(static_cast<std::size_t>(index));
}

ClsCode* Interpreter::FindPage(std::string_view name) {
    for (const auto& page : pages_) {
        if (SameName(page->PageName(), name, caseSensitive_)) return page.get();
    }
    return nullptr;
}

void Interpreter::SetProgramText(std::string text) {
    if (text != programText_) programAnalysed_ = cutIsCurrent_ = false;
    programText_ = std::move(text);
}

void Interpreter::ShowRunningStatement() {
    ClsCode* page = nullptr;
    if (runningPage_ == kImmediatePageIndex) page = &ImmediatePage();
    if (runningPage_ >= 0 && runningPage_ < PageCount()) page = &Page(runningPage_);
    if (page == nullptr) return;
    view_->ShowPageIndex(runningPage_);
    view_->ShowLineIndex(runningLine_);
    if (runningLine_ >= 0 && runningLine_ < page->LineNum() && view_->ProgramListVisible()) {
        view_->SelectProgramListEntry(page->Line(runningLine_).LnNo);
    }
}

void Interpreter::LetViewEventsRun() {
    view_->ProcessEvents();
    ClearUpperVectorRegisters();
}

bool Interpreter::EnterCall() {
    return ++callDepth_ <= kMaxCallDepth;
}

bool Interpreter::RunProgram(double& re, double& im, bool eraseGlobals, bool run) {
    if (Busy()) return false;
    busy_ = true;
    const bool ok = RunProgramOnce(re, im, eraseGlobals, run);
    busy_ = false;
    return ok;
}

bool Interpreter::RunProgramOnce(double& re, double& im, bool eraseGlobals, bool run) {
    view_->HideHint();
    view_->SetKai("");
    LetViewEventsRun();
    if (!programAnalysed_) {
        if (eraseGlobals) EraseAllMemories();
        view_->SetKai("Now Analising");
        view_->SetPhaseColour(kAnalysingColour);
        programAnalysed_ = CutProgram();
        view_->SetPhaseColour(kReadyColour);
    }
    const std::string pageCount = std::to_string(PageCount());
    if (!programAnalysed_) {
        view_->SetKai("Code Error" + pageCount);
        return false;
    }
    if (!run) {
        // The analysis-only path ends on "Code Error" as well; it is kept so.
        view_->SetKai("Analise is Completed");
        view_->SetKai("Code Error" + pageCount);
        return false;
    }
    view_->SetKai("Now Executing");
    if (!Page(0).APc02CodeExecute(re, im)) {
        view_->SetKai("End of Analize Page Number=" + pageCount);
        return false;
    }
    view_->ShowResult({re, im});
    return true;
}

bool Interpreter::CutProgram() {
    view_->ClearProgramList();
    pages_.clear();
    const std::vector<std::string> statements = CutStatements(programText_, sourceLines_);
    for (const std::string& statement : statements)
        view_->AddProgramListEntry(statement);
    cutIsCurrent_ = true;
    if (statements.empty()) {
        // Nothing to analyse; said in words, beside the "Code Error0" status.
        view_->Errmessage("プログラムが空です（実行する文がありません）");
        return false;
    }
    bool built = false;
    try {
        built = BuildPages(statements);
    } catch (const RuntimeFault&) {
        built = false;
    }
    if (!built) {
        view_->Errmessage("コード解析Pass1 エラー" + std::string(kCrLf) +
                          "関数の定義不正(Function...EndFunction不正等)");
        return false;
    }
    for (const auto& page : pages_) {
        if (!page->APc01CodeAnalize()) return false;
    }
    return true;
}

// "Main" runs from the first statement to its End; each function from its
// header to its own End Function.
bool Interpreter::BuildPages(const std::vector<std::string>& statements) {
    std::size_t i = 0;
    while (i < statements.size()) {
        const auto p = ToInt16(static_cast<long long>(pages_.size()));
        auto& page = *pages_.emplace_back(std::make_unique<ClsCode>(*this));
        page.SetPageIndex(p);
        page.SetCode(0, ToInt16(static_cast<long long>(i)), statements[i]);
        if (p == 0) {
            page.SetPageName("Main");
            if (BeginsFunction(statements[i])) return false;
        } else if (!page.APc03DefineFunction(statements[i])) {
            return false;
        }
        while (!(p == 0 && page.APc01BotomLine())) {
            if (++i >= statements.size()) return false;
            page.SetCode(page.LineNum(), ToInt16(static_cast<long long>(i)), statements[i]);
            if (page.APc01BotomLine()) break;
            if (BeginsFunction(statements[i])) return false;
        }
        ++i;
    }
    return true;
}

std::int32_t Interpreter::SourceLineOf(std::int16_t entry) const {
    if (!cutIsCurrent_ || entry < 0 || static_cast<std::size_t>(entry) >= sourceLines_.size()) {
        return -1;
    }
    return sourceLines_[static_cast<std::size_t>(entry)];
}

void Interpreter::EraseGlobals() {
    if (!Busy()) EraseAllMemories();
}

void Interpreter::EraseAllMemories() {
    ImmediatePage().AEraseMemorys();
    view_->ClearMemoryDisplay();
    for (const auto& page : pages_)
        page->AEraseMemorys();
    programAnalysed_ = false;
}

ImmediateResult Interpreter::ImmediateLine(std::string_view line) {
    ImmediateResult result;
    ClsCode& page = ImmediatePage();
    // The page keeps the reason of its last failure, which may be an earlier
    // line's: this line's reason starts empty.
    page.ClearErrorText();
    line = Trim(line);
    const std::string_view brackets = BracketFault(line);
    const bool declaration = StartsWithWord(line, "global ") || StartsWithWord(line, "Dim ");
    if (declaration || FindTopLevel(line, '=') != std::string_view::npos) {
        result.ok = page.AImidateStatement(line, result.value.Re, result.value.Im);
    } else if (brackets.empty()) {
        result.ok = page.ACalcu(TrimRight(line), result.value.Re, result.value.Im);
    }
    if (!result.ok) {
        result.reason = !page.ErrorText().empty() ? page.ErrorText()
                        : !brackets.empty()       ? std::string(brackets)
                                                  : std::string("式が正しくありません");
    }
    return result;
}

}  // namespace lapdesk
