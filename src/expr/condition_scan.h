// What the evaluator learns by scanning a condition text: the text with its
// operator synonyms replaced by the dotted forms, cut into operands and
// operators, each operand with the scan of its expression. Like an
// expression's scan it follows from the text alone and serves every later
// evaluation of the same text.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "expr/expression_scan.h"

namespace lapdesk {

struct ConditionToken {
    bool isOperator = false;
    std::string_view text;  // the operand text, or the canonical operator name
    // An operand: its text inside the brackets that enclose all of it, and
    // the scan of that text as an expression.
    std::string_view inside;
    std::optional<LazySumScan> operand;
};

struct ConditionScan {
    explicit ConditionScan(std::string_view text);
    ConditionScan(const ConditionScan&) = delete;  // the tokens point into `replaced`
    ConditionScan& operator=(const ConditionScan&) = delete;

    std::size_t bracketDepth = 0;
    std::string replaced;
    bool bracketsBalance = false;
    std::vector<ConditionToken> tokens;
};

}  // namespace lapdesk
