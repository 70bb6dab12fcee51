#include "expr/text_scan.h"

#include <algorithm>

namespace lapdesk {

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Index of the ")" that closes the "(" at `open`, npos when unmatched.
std::size_t MatchingBracket(std::string_view text, std::size_t open) {
    int depth = 0;
    for (std::size_t i = open; i < text.size(); ++i) {
        if (text[i] == '(') ++depth;
        if (text[i] == ')' && --depth == 0) return i;
    }
    return std::string_view::npos;
}

// True when the sign at `pos` continues the operand instead of ending it:
// it follows an operator character (a signed factor) or the "E" of a number.
bool SignBelongsToOperand(std::string_view text, std::size_t pos) {
    std::size_t i = pos;
    while (i > 0 && IsBlank(text[i - 1]))
        --i;
    if (i == 0) return false;
    const char before = text[i - 1];
    if (before == '*' || before == '/' || before == '^') return true;
    if (i != pos || (before != 'E' && before != 'e')) return false;
    // A mantissa of digits and one point must stand before the E, with no
    // name character in front of it (x2E-3 is x2E minus 3).
    std::size_t k = i - 1;
    bool digits = false;
    while (k > 0 && (IsDigit(text[k - 1]) || text[k - 1] == '.')) {
        digits = digits || IsDigit(text[k - 1]);
        --k;
    }
    if (!digits) return false;
    if (k == 0) return true;
    const char lead = text[k - 1];
    return IsBlank(lead) || CharInSet(lead, "+-*/^(,") != 0;
}

}  // namespace

std::string_view TrimLeft(std::string_view s) {
    while (!s.empty() && IsBlank(s.front()))
        s.remove_prefix(1);
    return s;
}

std::string_view TrimRight(std::string_view s) {
    while (!s.empty() && IsBlank(s.back()))
        s.remove_suffix(1);
    return s;
}

std::string_view Trim(std::string_view s) {
    return TrimRight(TrimLeft(s));
}

std::size_t CharInSet(char c, std::string_view set) {
    const std::size_t pos = set.find(c);
    return pos == std::string_view::npos ? 0 : pos + 1;
}

bool SplitOperand(std::string_view& text, std::string_view ops, std::string_view& operand,
                  std::size_t from) {
    for (std::size_t i = from; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '(') {
            const std::size_t close = MatchingBracket(text, i);
            if (close == std::string_view::npos) return false;
            i = close;
            continue;
        }
        if (c == ')') return false;
        if (CharInSet(c, ops) == 0) continue;
        if ((c == '+' || c == '-') && SignBelongsToOperand(text, i)) continue;
        operand = text.substr(0, i);
        text.remove_prefix(i);
        return true;
    }
    operand = text;
    text = {};
    return true;
}

bool SplitTopLevel(std::string_view text, char separator, std::vector<std::string_view>& pieces) {
    pieces.clear();
    int depth = 0;
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '(') ++depth;
        if (text[i] == ')' && --depth < 0) return false;
        if (text[i] == separator && depth == 0) {
            pieces.push_back(text.substr(start, i - start));
            start = i + 1;
        }
    }
    if (depth != 0) return false;
    pieces.push_back(text.substr(start));
    return true;
}

std::size_t BracketDepth(std::string_view text) {
    std::size_t depth = 0;
    std::size_t deepest = 0;
    for (char c : text) {
        if (c == '(') deepest = std::max(deepest, ++depth);
        if (c == ')' && depth > 0) --depth;
    }
    return deepest;
}

bool BracketClosesAtEnd(std::string_view text, std::size_t open) {
    return open < text.size() && text[open] == '(' &&
           MatchingBracket(text, open) == text.size() - 1;
}

std::size_t FindTopLevel(std::string_view text, char c) {
    int depth = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == c && depth == 0) return i;
        if (text[i] == '(') ++depth;
        if (text[i] == ')' && --depth < 0) return std::string_view::npos;
    }
    return std::string_view::npos;
}

bool IsValidName(std::string_view name) {
    if (name.empty() || IsDigit(name.front()) || name.front() == '.') return false;
    for (char c : name) {
        if (IsBlank(c) || CharInSet(c, ".+-*/^()=,<>&~!'\":;\\") != 0) return false;
    }
    return true;
}

bool SplitNameAndSubscripts(std::string_view text, NameWithSubscripts& result) {
    text = Trim(text);
    const std::size_t open = text.find('(');
    result.subscripts.clear();
    if (open == std::string_view::npos) {
        result.name = text;
        return IsValidName(text);
    }
    if (!BracketClosesAtEnd(text, open)) return false;
    result.name = TrimRight(text.substr(0, open));
    if (!IsValidName(result.name)) return false;
    if (!SplitTopLevel(text.substr(open + 1, text.size() - open - 2), ',', result.subscripts)) {
        return false;
    }
    return result.subscripts.size() <= 2;
}

}  // namespace lapdesk
