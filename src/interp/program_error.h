// What went wrong in a program and where, as the interpreter tells its view:
// the view formats the message from it and marks the statement's line.
#pragma once

#include <cstdint>
#include <string>

namespace lapdesk {

// A statement of a program page: the page, the statement's place in it, the
// line of the program text it was cut from, and its text.
struct StatementPlace {
    std::string page;
    std::int16_t statement = -1;   // 0-based within the page; -1 when unknown
    std::int32_t sourceLine = -1;  // 0-based line of the program text; -1 when unknown
    std::string text;

    bool Known() const { return statement >= 0; }
};

enum class ProgramErrorKind {
    Analysis,            // the statement cannot be analysed; detail: why
    Run,                 // the statement failed to run
    ArgumentExpression,  // a call's argument failed; detail: the argument
    ArgumentSubscript,   // a subscript of a call's argument failed; detail: the argument
    ArgumentRange,       // a call's argument addresses no element; detail: the argument
    AbnormalEnd,         // a fault ended the run; detail: the fault's description
};

struct ProgramError {
    ProgramErrorKind kind = ProgramErrorKind::Run;
    StatementPlace place;
    std::string detail;
};

// "Main: 3行目": the page and the statement as the user counts it.
std::string PlaceName(const StatementPlace& place);

// Why a call's argument failed, without its place: "引数式 q + w 実行エラー".
std::string ArgumentFailureText(ProgramErrorKind kind, const std::string& argument);

// The message of the error as every view shows it, lines joined with CR LF:
// "Main: 2行目実行エラー", "Main: 2行目：引数式 q + w 実行エラー" or
// "Main: 2行目解析エラー" and then the statement; "実行時異常終了" and then
// the fault.
std::string MessageText(const ProgramError& error);

}  // namespace lapdesk
