// The language's vocabulary: condition operator synonyms, statement keywords,
// named constants, scalar and matrix functions, each with the help line the
// calculator's menus show. Filled once per process; read-only afterwards.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "expr/keywords.h"
#include "expr/matrix_call.h"
#include "values/builtins.h"
#include "values/complex.h"

namespace lapdesk {

struct OperatorSynonym {
    std::string synonym;    // as written in a condition: "<=", " And ", ...
    std::string canonical;  // the dotted operator: ".LE.", ".And.", ...
};

struct CanonicalOperator {
    std::string name;  // ".And.", ".EQ.", ...
    std::string help;  // the menu line, listing the synonyms in quotes
};

struct StatementKeyword {
    std::string word;  // "Exit For", "ExitFor", "End If", ...
    StatementKind code;
};

struct NamedConstant {
    std::string name;
    std::int16_t group;  // index into Vocabulary::constantHelp, which also fixes the value
};

struct ScalarFunction {
    std::string name;  // with its opening bracket: "Sin("
    // Handed to CallScalarFunction; none for "Boolean(", whose argument is
    // evaluated as a condition.
    std::optional<ScalarCode> code;
    int minArguments;
    int maxArguments;
    std::string help;  // empty when the row shares the line above
};

struct MatrixFunction {
    std::string name;  // "Gauss(" ...
    MatrixCode code;
    MatrixResult result;
    std::string usage;
    std::string description;
};

struct Vocabulary {
    std::vector<OperatorSynonym> operatorSynonyms;
    std::vector<CanonicalOperator> operators;
    std::vector<StatementKeyword> keywords;
    std::vector<std::string> keywordMenu;
    std::vector<NamedConstant> constants;
    std::vector<std::string> constantHelp;
    std::vector<ScalarFunction> scalarFunctions;
    std::vector<MatrixFunction> matrixFunctions;
};

// Fills the tables (once) and sets the process-wide defaults: AngleUnit 1.0
// and a fresh seed for the random numbers.
void InitVocabulary();

// The tables, filled on first use if nothing called InitVocabulary yet.
const Vocabulary& GetVocabulary();

// Names of the vocabulary compare without regard to ASCII letter case.
bool SameWord(std::string_view a, std::string_view b);
bool StartsWithWord(std::string_view text, std::string_view word);

// Index of the scalar (or matrix) function whose name, bracket included,
// begins the text; the first row that matches wins.
std::optional<std::size_t> FindScalarFunction(std::string_view text);
std::optional<std::size_t> FindMatrixFunction(std::string_view text);

// The value of a named constant ("π", "PAI", "Exp1", "1j", "Random", ...).
std::optional<Complex> ConstantValue(std::string_view name);
// Whether ConstantValue knows the name; draws no random number.
bool IsNamedConstant(std::string_view name);

// True when the name is a word of the vocabulary; never for a name that
// begins with a digit.
bool IsReservedWord(std::string_view name);

// For an unknown plain name that other calculators use for a named constant
// (pi, tau, e, i, j; any letter case): the advice appended to the message
// that the name is not defined, naming the constant of this language.
std::optional<std::string_view> UnknownNameHint(std::string_view name);

}  // namespace lapdesk
