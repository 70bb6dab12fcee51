// The records a code page keeps: its variables, its stored statements, the
// tables analysis builds, and the arguments of calls.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "expr/condition_scan.h"
#include "expr/expression_scan.h"
#include "expr/keywords.h"
#include "expr/scan_cache.h"
#include "values/complex.h"

namespace lapdesk {

class ClsCode;

// One variable: a scalar (Typ 0), vector (1) or matrix (2) of complex values.
// Element (i, j) is at (NI + 1) * j + i.
struct MemoryRec {
    std::string Name;
    std::int16_t Typ = 0;
    std::int16_t NI = 0;
    std::int16_t NJ = 0;
    std::int16_t Ln = 0;
    std::vector<Complex> Values;
};

// What a name stands for in a page, as a lookup finds it.
enum class NameKind : std::uint8_t {
    None,               // no variable of that name
    Memory,             // a variable of the page's own memory
    Global,             // a global
    Main,               // a variable of "Main", seen from the immediate line
    ValueParameter,     // a parameter bound to a value
    ElementParameter,   // a parameter bound to one element of a variable
    VariableParameter,  // a parameter bound to a whole variable
};

constexpr bool IsParameter(NameKind kind) {
    return kind == NameKind::ValueParameter || kind == NameKind::ElementParameter ||
           kind == NameKind::VariableParameter;
}

// Where an assignment stores its value.
enum class TargetKind : std::uint8_t {
    Result,     // the page's own result (its name)
    Memory,     // a variable of the page
    Global,     // a global
    Parameter,  // a parameter of the page
};

// What a call passes for one argument, and so what a parameter slot holds.
enum class ArgumentKind : std::uint8_t {
    Memory,      // a variable of the caller's memory, by reference
    Global,      // a global, by reference
    Parameter,   // a parameter of the caller, passed on
    Literal,     // a number literal, by value
    Expression,  // any other expression, by value
};

// A statement's table entry or branch number where it has none.
inline constexpr std::int16_t kNoEntry = -999;

// The page index of the immediate page, whose memory is the global memory.
inline constexpr std::int16_t kImmediatePageIndex = -1;

// A statement's expression or condition with its scan, made once by
// analysis so that every run evaluates the same scan.
using ExpressionCode = std::shared_ptr<const KeptScan<SumScan>>;
using ConditionCode = std::shared_ptr<const KeptScan<ConditionScan>>;
inline ExpressionCode ScanExpression(std::string_view text) {
    return std::make_shared<const KeptScan<SumScan>>(text);
}
inline ConditionCode ScanCondition(std::string_view text) {
    return std::make_shared<const KeptScan<ConditionScan>>(text);
}

// One stored statement and what analysis found out about it.
struct CodeLine {
    std::string Text;
    std::int16_t LnNo = 0;                          // entry of the program list to highlight
    StatementKind Kind = StatementKind::NoKeyword;  // NoKeyword until analysed
    std::int16_t CodeIndex = kNoEntry;              // entry in the table of its kind
    std::int16_t Link = kNoEntry;                   // branch number inside If / Select Case
    ExpressionCode Value{};                         // of Return and of a bare call
};

// An assignment target's subscripts with their scans.
struct TargetSubscripts {
    explicit TargetSubscripts(const std::vector<std::string_view>& subscripts)
        : texts(subscripts.begin(), subscripts.end()) {
        for (const std::string& text : texts)
            scans.emplace_back(text);  // after `texts` is complete: they point into it
    }
    TargetSubscripts(const TargetSubscripts&) = delete;
    TargetSubscripts& operator=(const TargetSubscripts&) = delete;
    std::vector<std::string> texts;
    std::vector<SubscriptScan> scans;
};

// An analysed assignment.
struct StatementCode {
    TargetKind Target = TargetKind::Result;
    std::int16_t TargetIndex = 0;
    std::shared_ptr<const TargetSubscripts> Subscripts;  // none for the page's result
    std::string Expression;
    // A statement made for one immediate line has none.
    ExpressionCode ExpressionScan;

    bool HasSubscripts() const { return Subscripts && !Subscripts->scans.empty(); }
};

struct ForBlock {
    std::int16_t ForLine = 0;
    std::int16_t NextLine = -1;
    double Counter = 0.0;
    double EndValue = 0.0;
    double StepValue = 0.0;
    std::int16_t VariableIndex = 0;
    ExpressionCode Start;
    ExpressionCode End;
    ExpressionCode Step;
};

struct DoBlock {
    std::int16_t DoLine = 0;
    std::int16_t LoopLine = -1;
    kw DoWord = kw::NoKeyword;  // While, Until or NoKeyword
    ConditionCode DoCondition;  // none without a word
    kw LoopWord = kw::NoKeyword;
    ConditionCode LoopCondition;
};

// If and Select Case: the later boundary lines of the block (each ElseIf,
// Else / Case, Case Else, and last the closing line) and one condition per
// branch, none for the unconditional one.
struct IfBlock {
    std::vector<std::int16_t> Boundaries;
    std::vector<ConditionCode> Conditions;
};

struct SelectBlock {
    std::string Selector;
    std::vector<std::int16_t> Boundaries;
    std::vector<ConditionCode> Conditions;
};

// One argument of a call, and one parameter slot of a function page (the
// same layout, so a call's argument is copied into the callee's slot).
struct CallArgument {
    std::string Name;  // the parameter's name (slot) or the argument text
    ArgumentKind Kind = ArgumentKind::Literal;
    ClsCode* Page = nullptr;  // owner of the variable referred to
    std::int16_t Index = -1;  // the variable's index there
    std::int16_t SubscriptCount = 0;
    std::string Subscript1;
    std::string Subscript2;
    std::int32_t Flat = -1;  // the element passed, once its subscripts are evaluated
    std::int16_t NI = 0;
    std::int16_t NJ = 0;
    std::int16_t Ln = 0;
    Complex Value;
    std::string Text;

    bool IsValue() const {
        return Kind == ArgumentKind::Literal || Kind == ArgumentKind::Expression;
    }
};

struct CallEntry {
    ClsCode* Target = nullptr;
    std::int16_t ArgumentCount = 0;
    std::vector<CallArgument> Arguments;
};

}  // namespace lapdesk
