// What the evaluator learns by scanning an expression text: where each level
// cuts it into operands and operators, and what kind of primary each operand
// can be (a built-in call, a number, a name with subscripts, a bracket). All
// of it follows from the text alone (the vocabulary never changes), so one
// scan serves every later evaluation of the same text; values, names and
// calls are still looked up at every evaluation, in the same order (a scope
// may keep where it found a name, see NameScope::Place).
#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "expr/name_scope.h"
#include "expr/sum_code.h"
#include "expr/text_scan.h"
#include "values/complex.h"

namespace lapdesk {

struct SumScan;

// The scan of a bracketed part, made on first use: a part that evaluation
// never reaches is never scanned, and scanning never runs deeper than the
// evaluation's own nesting checks allow.
class LazySumScan {
  public:
    explicit LazySumScan(std::string_view text) : text_(text) {}
    const SumScan& Get() const;

  private:
    std::string_view text_;
    mutable std::shared_ptr<const SumScan> scan_;
};

// A subscript's text as it is evaluated: trimmed, and "0" for an empty one.
std::string_view SubscriptText(std::string_view subscript);

// One subscript of an element Name(i) or Name(i, j) and its scan.
struct SubscriptScan {
    explicit SubscriptScan(std::string_view subscript);
    std::string_view text;  // trimmed: what the evaluator's argument memo knows it by
    LazySumScan scan;
};

// A built-in scalar or matrix function call Name(arguments).
struct FunctionCallScan {
    std::size_t row = 0;                      // in the scalar or matrix function table
    bool bracketsClose = false;               // the name's "(" closes at the end
    bool argumentsSplit = false;              // the argument list cuts at its commas
    std::vector<std::string_view> arguments;  // trimmed for matrix functions
    std::vector<LazySumScan> argumentScans;   // scalar functions only
};

// primary -> function call | matrix call | user call | literal | name | ( sum )
struct PrimaryScan {
    explicit PrimaryScan(std::string_view text);
    std::string_view text;  // trimmed
    std::optional<FunctionCallScan> scalarCall;
    std::optional<FunctionCallScan> matrixCall;
    bool mayCallUser = false;  // ends with ")" and is no built-in call
    std::optional<Complex> literal;
    bool mayBeConstant = false;
    bool isName = false;  // Name, Name(i) or Name(i,j)
    NameWithSubscripts name;
    std::vector<SubscriptScan> subscripts;  // of name
    mutable NameScope::Place place;         // where the scope last found the name
    std::optional<LazySumScan> bracketed;   // ( sum )
};

// One bracket level of a text, every level's operands kept in one array:
// a sum's terms, each term's factors, each factor's primaries. A term or
// factor names the range of its operands in the next array.
struct SumScan {
    struct Operand {
        char op = 0;  // the operator before it; a sum's first term has its sign
        std::size_t first = 0;
        std::size_t count = 0;
        bool empty = false;            // (term or factor) nothing but blanks
        bool unbalancedAfter = false;  // cutting fails after the operands
    };

    SumScan() = default;
    // sum -> [+|-] term { (+|-) term }
    explicit SumScan(std::string_view text);

    std::size_t bracketDepth = 0;  // checked against the nesting limits first
    Operand sum;                   // its range of terms
    std::vector<Operand> terms;    // each with its range of factors
    std::vector<Operand> factors;  // each with its range of primaries
    std::vector<char> primaryOps;  // "^" or 0 before each primary
    std::vector<PrimaryScan> primaries;
    SumCodeSlot code;  // the same sum as steps, once it is evaluated

  private:
    void ScanTerm(char op, std::string_view text);
    void ScanFactor(char op, std::string_view text);
};

}  // namespace lapdesk
