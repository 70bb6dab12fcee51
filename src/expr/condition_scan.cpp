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

// The text inside the bracket pairs that enclose all of it: "((a) .Or. b)"
// gives "(a) .Or. b". Trying ((c)) as an expression fails exactly as trying
// c does, so an operand is tried once, not once per bracket pair.
std::string_view WithoutEnclosingBrackets(std::string_view text) {
    text = Trim(text);
    while (text.size() >= 2 && BracketClosesAtEnd(text, 0)) {
        text = Trim(text.substr(1, text.size() - 2));
    }
    return text;
}

void AddOperand(std::string_view operand, std::vector<ConditionToken>& tokens) {
    operand = Trim(operand);
    if (operand.empty()) return;
    ConditionToken token;
    token.text = operand;
    token.inside = WithoutEnclosingBrackets(operand);
    token.operand.emplace(token.inside);
    tokens.push_back(std::move(token));
}

void AddOperator(std::string_view op, std::vector<ConditionToken>& tokens) {
    ConditionToken token;
    token.isOperator = true;
    token.text = op;
    tokens.push_back(std::move(token));
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
        AddOperator(op, tokens);
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
