// Conversion between the system's Japanese code page (cp932) and the UTF-8
// text the program works in, and the splitting of text into lines.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lapdesk {

// A converted text, or the reason it could not be converted.
struct TextResult {
    bool ok = false;
    std::string text;
    std::string reason;
};

TextResult Cp932ToUtf8(std::string_view cp932);
// Fails on a character cp932 cannot hold instead of writing a substitute.
TextResult Utf8ToCp932(std::string_view utf8);

// True for well-formed UTF-8 (no overlong forms, surrogates or values past
// U+10FFFF).
bool IsValidUtf8(std::string_view bytes);

// Bytes of a text file to UTF-8: a UTF-8 byte-order mark or valid UTF-8 means
// UTF-8 (the mark is dropped), anything else is read as cp932.
TextResult DecodeText(std::string_view bytes);

// Splits at CR LF, LF or a lone CR. A break at the very end does not start
// another line, so "" gives no lines and "a\r\n" gives one.
std::vector<std::string> SplitLines(std::string_view text);

}  // namespace lapdesk
