#include "expr/keywords.h"

#include "expr/text_scan.h"
#include "expr/vocabulary.h"

namespace lapdesk {

namespace {

// A keyword must end where a name could not go on: "Format = 1" is an
// assignment, not a For statement.
bool EndsWord(std::string_view text, std::size_t at) {
    if (at >= text.size()) return true;
    const unsigned char c = static_cast<unsigned char>(text[at]);
    const bool nameChar = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                          (c >= '0' && c <= '9') || c == '_' || c >= 0x80;
    return !nameChar;
}

}  // namespace

StatementKind ClassifyStatement(std::string_view statement, std::string_view& rest) {
    const std::string_view text = TrimLeft(statement);
    for (const StatementKeyword& keyword : GetVocabulary().keywords) {
        if (StartsWithWord(text, keyword.word) && EndsWord(text, keyword.word.size())) {
            rest = TrimLeft(text.substr(keyword.word.size()));
            return keyword.code;
        }
    }
    rest = statement;
    return kw::NoKeyword;
}

}  // namespace lapdesk
