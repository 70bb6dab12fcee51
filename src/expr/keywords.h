// Classification of a statement by the keyword that begins it.
#pragma once

#include <cstdint>
#include <string_view>

namespace lapdesk {

// Statement codes of the keyword table; an assignment classifies as
// kAssignmentCode; analysis gives an assignment the kind Assignment and a
// call without Call the kind BareCall.
namespace kw {
inline constexpr std::int16_t kAssignmentCode = -1;
inline constexpr std::int16_t End = 1;
inline constexpr std::int16_t Dim = 2;
inline constexpr std::int16_t Global = 3;
inline constexpr std::int16_t Call = 4;
inline constexpr std::int16_t For = 5;
inline constexpr std::int16_t Next = 6;
inline constexpr std::int16_t ExitFor = 7;
inline constexpr std::int16_t Do = 8;
inline constexpr std::int16_t Loop = 9;
inline constexpr std::int16_t ExitDo = 10;
inline constexpr std::int16_t If = 11;
inline constexpr std::int16_t Else = 12;
inline constexpr std::int16_t ElseIf = 13;
inline constexpr std::int16_t EndIf = 14;
inline constexpr std::int16_t Return = 15;
inline constexpr std::int16_t Function = 16;
inline constexpr std::int16_t ExitFunction = 17;
inline constexpr std::int16_t Select = 18;
inline constexpr std::int16_t Case = 19;
inline constexpr std::int16_t CaseElse = 20;
inline constexpr std::int16_t EndSelect = 21;
inline constexpr std::int16_t BareCall = 22;
inline constexpr std::int16_t Until = 23;
inline constexpr std::int16_t While = 24;
inline constexpr std::int16_t Assignment = 100;
}  // namespace kw

// The code of the first keyword of the table (in table order, ignoring case)
// that begins the statement as a whole word; `rest` gets the text after it,
// left-trimmed. Without a keyword: kw::kAssignmentCode and rest = statement.
std::int16_t ClassifyStatement(std::string_view statement, std::string_view& rest);

}  // namespace lapdesk
