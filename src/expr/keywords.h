// Classification of a statement by the keyword that begins it.
#pragma once

#include <cstdint>
#include <string_view>

namespace lapdesk {

// What a statement is, by the keyword that begins it: the codes of the
// keyword table. A statement without a keyword classifies as NoKeyword;
// analysis gives an assignment the kind Assignment and a call without Call
// the kind BareCall.
enum class StatementKind : std::int16_t {
    NoKeyword = -1,
    End = 1,
    Dim = 2,
    Global = 3,
    Call = 4,
    For = 5,
    Next = 6,
    ExitFor = 7,
    Do = 8,
    Loop = 9,
    ExitDo = 10,
    If = 11,
    Else = 12,
    ElseIf = 13,
    EndIf = 14,
    Return = 15,
    Function = 16,
    ExitFunction = 17,
    Select = 18,
    Case = 19,
    CaseElse = 20,
    EndSelect = 21,
    BareCall = 22,
    Until = 23,
    While = 24,
    Assignment = 100,
};
using kw = StatementKind;

// The code of the first keyword of the table (in table order, ignoring case)
// that begins the statement as a whole word; `rest` gets the text after it,
// left-trimmed. Without a keyword: kw::NoKeyword and rest = statement.
StatementKind ClassifyStatement(std::string_view statement, std::string_view& rest);

}  // namespace lapdesk
