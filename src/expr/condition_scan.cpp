#include "expr/condition_scan.h"

#include "expr/conditions.h"
#include "expr/text_scan.h"
#include "expr/vocabulary.h"

namespace lapdesk {

namespace {

// The canonical operator that begins `text`, if any.
std::string_view OperatorAt(std::string_view text) {
    for (const CanonicalOperator& op : GetVocabulary().operators) {
        if (StartsWithWord(text, op.name)) return op.name;
    }
    return {};
}

void AddOperand(std::string_view operand, std::vector<ConditionToken>& tokens) {
    operand = Trim(operand);
    if (!operand.empty()) tokens.push_back({false, operand});
}

// Cuts the condition at its dotted operators outside brackets.
bool Tokenize(std::string_view s, std::vector<ConditionToken>& tokens) {
    int depth = 0;
    std::size_t start = 0;
    for (std::size_t i = 0; i < s.size(); ++i) {
        if (s[i] == '(') ++depth;
        if (s[i] == ')' && --depth < 0) return false;
        if (s[i] != '.' || depth != 0) continue;
        const std::string_view op = OperatorAt(s.substr(i));
        if (op.empty()) continue;
        AddOperand(s.substr(start, i - start), tokens);
        tokens.push_back({true, op});
        i += op.size() - 1;
        start = i + 1;
    }
    if (depth != 0) return false;
    AddOperand(s.substr(start), tokens);
    return true;
}

}  // namespace

ConditionScan::ConditionScan(std::string_view text)
    : bracketDepth(BracketDepth(text)), replaced(ReplaceSynonyms(text)) {
    bracketsBalance = Tokenize(replaced, tokens);
}

}  // namespace lapdesk
