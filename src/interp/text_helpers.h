// Text searches shared by the interpreter, with the 1-based positions its
// statements are described in.
#pragma once

#include <string>
#include <string_view>

namespace lapdesk {

// The line break used inside messages and program texts.
inline constexpr std::string_view kCrLf = "\r\n";

// 1-based position of pattern in text at or after start, 0 when absent;
// compare 0 = exact, 1 = ignoring ASCII letter case.
std::size_t FindText(std::size_t start, std::string_view text, std::string_view pattern,
                     int compare);
std::size_t FindTextNoCase(std::string_view text, std::string_view pattern);

// 1-based position of `word` as a whole word (ignoring case), 0 when absent.
std::size_t FindWordNoCase(std::string_view text, std::string_view word);

// Name equality: exact when names are case-sensitive, else ignoring case.
bool SameName(std::string_view a, std::string_view b, bool caseSensitive);

}  // namespace lapdesk
