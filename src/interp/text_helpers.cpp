#include "interp/text_helpers.h"

#include "expr/vocabulary.h"

namespace lapdesk {

namespace {

bool IsWordChar(unsigned char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c >= 0x80;
}

bool MatchesAt(std::string_view text, std::size_t at, std::string_view pattern, int compare) {
    const std::string_view piece = text.substr(at, pattern.size());
    return compare == 0 ? piece == pattern : SameWord(piece, pattern);
}

}  // namespace

std::size_t FindText(std::size_t start, std::string_view text, std::string_view pattern,
                     int compare) {
    if (start == 0 || pattern.size() > text.size()) return 0;
    for (std::size_t at = start - 1; at + pattern.size() <= text.size(); ++at) {
        if (MatchesAt(text, at, pattern, compare)) return at + 1;
    }
    return 0;
}

std::size_t FindTextNoCase(std::string_view text, std::string_view pattern) {
    return FindText(1, text, pattern, 1);
}

std::size_t FindWordNoCase(std::string_view text, std::string_view word) {
    for (std::size_t pos = FindTextNoCase(text, word); pos != 0;
         pos = FindText(pos + 1, text, word, 1)) {
        const std::size_t at = pos - 1;
        const bool startsWord = at == 0 || !IsWordChar(static_cast<unsigned char>(text[at - 1]));
        const std::size_t end = at + word.size();
        const bool endsWord =
            end >= text.size() || !IsWordChar(static_cast<unsigned char>(text[end]));
        if (startsWord && endsWord) return pos;
    }
    return 0;
}

bool SameName(std::string_view a, std::string_view b, bool caseSensitive) {
    return caseSensitive ? a == b : SameWord(a, b);
}

}  // namespace lapdesk
