#include "expr/expression_scan.h"

#include <algorithm>
#include <string>

#include "expr/vocabulary.h"
#include "values/number_text.h"

namespace lapdesk {

namespace {

FunctionCallScan ScanFunctionCall(std::size_t row, std::string_view name, std::string_view text) {
    FunctionCallScan call;
    call.row = row;
    const std::size_t open = name.size() - 1;  // the name includes its "("
    call.bracketsClose = BracketClosesAtEnd(text, open);
    if (!call.bracketsClose) return call;
    const std::string_view inside = text.substr(open + 1, text.size() - open - 2);
    call.argumentsSplit = SplitTopLevel(inside, ',', call.arguments);
    return call;
}

// Name(arguments): an empty list has no arguments; every argument is a sum.
FunctionCallScan ScanScalarCall(std::size_t row, std::string_view text) {
    const std::string& name = GetVocabulary().scalarFunctions[row].name;
    FunctionCallScan call = ScanFunctionCall(row, name, text);
    if (!call.bracketsClose) return call;
    const std::size_t open = name.size() - 1;
    if (Trim(text.substr(open + 1, text.size() - open - 2)).empty()) {
        call.arguments.clear();
        call.argumentsSplit = true;
    }
    for (std::string_view argument : call.arguments)
        call.argumentScans.emplace_back(argument);
    return call;
}

// Name(A, B, ...): the arguments are array names.
FunctionCallScan ScanMatrixCall(std::size_t row, std::string_view text) {
    FunctionCallScan call = ScanFunctionCall(row, GetVocabulary().matrixFunctions[row].name, text);
    for (std::string_view& argument : call.arguments)
        argument = Trim(argument);
    return call;
}

// Cuts a term or factor text at `ops`, handing each operand with the
// operator before it (0 for the first) to add(op, operand).
template <typename Add>
void ScanChain(std::string_view text, std::string_view ops, SumScan::Operand& chain, Add add) {
    text = Trim(text);
    if (text.empty()) {
        chain.empty = true;
        return;
    }
    char op = 0;
    for (;;) {
        std::string_view operand;
        if (!SplitOperand(text, ops, operand)) {
            chain.unbalancedAfter = true;
            return;
        }
        add(op, operand);
        ++chain.count;
        if (text.empty()) return;
        op = text.front();
        text.remove_prefix(1);
    }
}

}  // namespace

std::string_view SubscriptText(std::string_view subscript) {
    subscript = Trim(subscript);
    return subscript.empty() ? "0" : subscript;
}

SubscriptScan::SubscriptScan(std::string_view subscript)
    : text(SubscriptText(subscript)), scan(text) {}

const SumScan& LazySumScan::Get() const {
    if (!scan_) scan_ = std::make_shared<const SumScan>(text_);
    return *scan_;
}

void SumScan::ScanFactor(char op, std::string_view text) {
    Operand factor{op, primaries.size()};
    ScanChain(text, "^", factor, [&](char before, std::string_view operand) {
        primaryOps.push_back(before);
        primaries.emplace_back(operand);
    });
    factors.push_back(factor);
}

// A term's factors, and each factor's primaries, are appended in order, so
// each range is contiguous.
void SumScan::ScanTerm(char op, std::string_view text) {
    Operand term{op, factors.size()};
    ScanChain(text, "*/", term,
              [&](char before, std::string_view operand) { ScanFactor(before, operand); });
    terms.push_back(term);
}

SumScan::SumScan(std::string_view text) : bracketDepth(BracketDepth(text)) {
    text = Trim(text);
    if (text.empty()) {
        sum.empty = true;
        return;
    }
    char op = '+';
    if (CharInSet(text.front(), "+-") != 0) {
        op = text.front();
        text.remove_prefix(1);
    }
    for (bool leading = true;; leading = false) {
        // A sign right after a binary "+" or "-" signs the next operand
        // (p=1+-2j); after the leading sign it does not (--3 fails).
        const std::size_t start = std::min(text.find_first_not_of(" \t"), text.size());
        const bool signedOperand =
            !leading && start < text.size() && CharInSet(text[start], "+-") != 0;
        std::string_view operand;
        if (!SplitOperand(text, "+-", operand, signedOperand ? start + 1 : 0)) {
            sum.unbalancedAfter = true;
            return;
        }
        ScanTerm(op, operand);
        ++sum.count;
        if (text.empty()) return;
        op = text.front();
        text.remove_prefix(1);
    }
}

PrimaryScan::PrimaryScan(std::string_view whole) : text(Trim(whole)) {
    if (text.empty()) return;
    if (text.back() == ')') {
        if (const auto row = FindScalarFunction(text)) {
            scalarCall = ScanScalarCall(*row, text);
        } else if (const auto row = FindMatrixFunction(text)) {
            matrixCall = ScanMatrixCall(*row, text);
        } else {
            mayCallUser = text.front() != '(';
        }
    }
    std::string literalText(text);
    Complex value;
    if (TextToComplex(literalText, value)) literal = value;
    mayBeConstant = IsNamedConstant(text);
    isName = SplitNameAndSubscripts(text, name);
    for (std::string_view subscript : name.subscripts)
        subscripts.emplace_back(subscript);
    if (text.front() == '(' && BracketClosesAtEnd(text, 0))
        bracketed.emplace(text.substr(1, text.size() - 2));
}

}  // namespace lapdesk
