// Cutting expression and statement texts at operators, commas and brackets,
// always skipping over bracketed groups.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lapdesk {

std::string_view Trim(std::string_view s);
std::string_view TrimLeft(std::string_view s);
std::string_view TrimRight(std::string_view s);

// Position of c in the set, 1-based; 0 when absent.
std::size_t CharInSet(char c, std::string_view set);

// Cuts the leading operand off the text: it ends at the first character of
// `ops` outside brackets. A sign that follows an operator character (2*-3,
// 2^-1) or is the exponent sign of a number (1E-3) belongs to the operand.
// The text keeps the rest, beginning with the operator. The scan for the
// operator starts at `from`. False on an unmatched bracket.
bool SplitOperand(std::string_view& text, std::string_view ops, std::string_view& operand,
                  std::size_t from = 0);

// Cuts at every `separator` outside brackets; false on unbalanced brackets.
bool SplitTopLevel(std::string_view text, char separator, std::vector<std::string_view>& pieces);

// The deepest bracket nesting in the text (0 without brackets).
std::size_t BracketDepth(std::string_view text);

// True when the "(" at `open` is closed by the text's last character.
bool BracketClosesAtEnd(std::string_view text, std::size_t open);

// Position of the first `c` outside brackets, npos when there is none or
// the brackets do not balance before it.
std::size_t FindTopLevel(std::string_view text, char c);

// A name with 0, 1 or 2 subscript texts: `Name`, Name(i), Name(i,j).
struct NameWithSubscripts {
    std::string_view name;
    std::vector<std::string_view> subscripts;
};
bool SplitNameAndSubscripts(std::string_view text, NameWithSubscripts& result);

// True for a text that can name a variable or function.
bool IsValidName(std::string_view name);

}  // namespace lapdesk
