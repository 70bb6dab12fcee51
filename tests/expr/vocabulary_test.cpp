// The vocabulary tables, the reserved-word check and statement classification.
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "expr/keywords.h"
#include "expr/vocabulary.h"
#include "values/complex.h"

namespace lapdesk {
namespace {

template <typename Row, typename Field>
std::vector<std::string> Column(const std::vector<Row>& rows, Field field) {
    std::vector<std::string> texts;
    for (const Row& row : rows)
        texts.push_back(row.*field);
    return texts;
}

TEST(VocabularyTables, OperatorSynonymsInReplacementOrder) {
    const Vocabulary& v = GetVocabulary();
    EXPECT_EQ(Column(v.operatorSynonyms, &OperatorSynonym::synonym),
              (std::vector<std::string>{" And ", " & ", " Or ", " ~ ", "Not ", "! ", "!=", "<>",
                                        "><", "<=", "=<", ">=", "=>", ">", "<", "="}));
    EXPECT_EQ(Column(v.operatorSynonyms, &OperatorSynonym::canonical),
              (std::vector<std::string>{".And.", ".And.", ".Or.", ".Or.", ".Not.", ".Not.", ".NE.",
                                        ".NE.", ".NE.", ".LE.", ".LE.", ".GE.", ".GE.", ".GT.",
                                        ".LT.", ".EQ."}));
}

TEST(VocabularyTables, OperatorHelpListsTheSynonymsInQuotes) {
    const Vocabulary& v = GetVocabulary();
    const auto help = [&](std::string_view name) {
        for (const CanonicalOperator& op : v.operators) {
            if (op.name == name) return op.help;
        }
        return std::string("(missing)");
    };
    EXPECT_EQ(help(".And."), ".And.,\" ＆ \"");
    EXPECT_EQ(help(".Or."), ".Or.,\" ~ \"");
    EXPECT_EQ(help(".Not."), ".Not.,\"! \"");
    EXPECT_EQ(help(".NE."), ".NE.,\"!=\",\"><\"");
    EXPECT_EQ(help(".LE."), ".LE.,\"=<\"");
    EXPECT_EQ(help(".GE."), ".GE.,\"=>\"");
}

// Classification takes the first keyword in table order, so a longer
// keyword must come before every keyword that begins it ("End If" before
// "End", "Case Else" before "Case").
TEST(VocabularyTables, LongerKeywordsComeBeforeTheirPrefixes) {
    const std::vector<StatementKeyword>& keywords = GetVocabulary().keywords;
    ASSERT_EQ(keywords.size(), 32u);
    for (std::size_t i = 0; i < keywords.size(); ++i) {
        for (std::size_t j = i + 1; j < keywords.size(); ++j) {
            EXPECT_FALSE(keywords[j].word.starts_with(keywords[i].word))
                << keywords[j].word << " comes after its prefix " << keywords[i].word;
        }
    }
}

TEST(VocabularyTables, KeywordMenuTexts) {
    const std::vector<std::string>& menu = GetVocabulary().keywordMenu;
    ASSERT_EQ(menu.size(), 24u);
    EXPECT_EQ(menu[11], "If  Then");
    EXPECT_EQ(menu[12], "ElseIf  Then , Else If   Then");
    EXPECT_EQ(menu[15], "Select Case");
    EXPECT_EQ(menu[21], "EndFunction , End Function");
    EXPECT_EQ(menu.back(), "End");
}

TEST(VocabularyTables, ConstantsAndTheirHelp) {
    const Vocabulary& v = GetVocabulary();
    std::vector<std::string> names = Column(v.constants, &NamedConstant::name);
    std::erase(names, "1j");  // "1j" may be a row of its own or the literal rule's
    EXPECT_EQ(names,
              (std::vector<std::string>{"π", "PAI", "2π", "DPI", "DPaI", "2Pai", "0.5π", "HPI",
                                        "HPaI", "0.5PaI", "Exp1", "1i", "Random", "Randomize"}));
    EXPECT_EQ(v.constantHelp, (std::vector<std::string>{
                                  "π,Pai：3.1415...", "2π,DPai,DPi：6.2831...",
                                  "2π,0.5π,0.5Pai,HPai,HPi：1.570...", "Exp1：ｅ=2.718....",
                                  "1i,1j：Sqrt(-1)", "Random：乱数", "Randomize：乱数初期化"}));
}

TEST(VocabularyTables, ScalarFunctionsInCodeOrder) {
    const Vocabulary& v = GetVocabulary();
    EXPECT_EQ(Column(v.scalarFunctions, &ScalarFunction::name),
              (std::vector<std::string>{
                  "Sin(",     "Cos(",   "Tan(",    "Atan(",      "Atn(",    "Exp(",  "Log(",
                  "Log10(",   "Log2(",  "Sqrt(",   "Sqr(",       "Qbic(",   "Sinh(", "Cosh(",
                  "Tanh(",    "Cpx(",   "Conj(",   "Real(",      "Image(",  "Abs(",  "Arg(",
                  "Integer(", "Power(", "Random(", "Randomize(", "Boolean("}));
    for (std::size_t i = 0; i + 1 < v.scalarFunctions.size(); ++i) {
        EXPECT_EQ(v.scalarFunctions[i].code, static_cast<std::int16_t>(i))
            << v.scalarFunctions[i].name;
    }
    EXPECT_GE(v.scalarFunctions.back().code, 1000);
    const auto help = [&](std::size_t i) { return v.scalarFunctions[i].help; };
    EXPECT_EQ(help(3), "Atan() , Atn()");
    EXPECT_EQ(help(9), "Sqrt() , Sqr()");
    EXPECT_EQ(help(15), "Cpx(,)：Cpx(a,b)=a+bj");
    EXPECT_EQ(help(18), "Image()：虚部");
    EXPECT_EQ(help(22), "Power(a,b)：a^b");
    EXPECT_EQ(help(25), "Boolean()：論理評価(真=1,偽=0)");
    EXPECT_EQ(v.scalarFunctions[0].maxArguments, 1);
    EXPECT_EQ(v.scalarFunctions[15].minArguments, 2);
    EXPECT_EQ(v.scalarFunctions[22].minArguments, 2);
}

TEST(VocabularyTables, MatrixFunctionsWithTheirHelpLines) {
    const Vocabulary& v = GetVocabulary();
    EXPECT_EQ(Column(v.matrixFunctions, &MatrixFunction::name),
              (std::vector<std::string>{"Gauss(", "MatxVec(", "MatxMat(", "MatI1(", "MatJ2(",
                                        "MatI3(", "INVMAT("}));
    EXPECT_EQ(v.matrixFunctions[0].usage, "'  書式：X=Gauss(A,B) → X(i)=Inv{A(i,j)}･B(j)");
    EXPECT_EQ(v.matrixFunctions[0].description, "'連立方程式 A(i,j)･X(j)=B(i) の解");
    EXPECT_EQ(v.matrixFunctions[4].description, "'マトリクス A の偏差成分の第二不変量");
    EXPECT_EQ(v.matrixFunctions[5].usage, "'  書式：I3=MatI3(A) → I3=|A(i,j)|");
    EXPECT_EQ(v.matrixFunctions[6].usage, "'  書式：InvA=MatInv(A) → InvA(i,j)=Inv{A(i,j)}");
    EXPECT_EQ(v.matrixFunctions[6].description, "'逆行列");
}

TEST(VocabularyLookups, FunctionNamesIncludeTheirBracket) {
    const struct {
        const char* text;
        std::optional<std::size_t> row;
    } rows[] = {{"Log10(x)", 7},    {"Log(x)", 6},         {"Log2(x)", 8},
                {"Sinh(x)", 12},    {"sin(x)", 0},         {"Sqr(x)", 10},
                {"Sqrt(x)", 9},     {"Sin", std::nullopt}, {"Sine(x)", std::nullopt},
                {"x", std::nullopt}};
    for (const auto& row : rows) {
        EXPECT_EQ(FindScalarFunction(row.text), row.row) << row.text;
    }
    EXPECT_EQ(FindMatrixFunction("invmat(A)"), 6u);
    EXPECT_EQ(FindMatrixFunction("MatI3(A)"), 5u);
    EXPECT_EQ(FindMatrixFunction("Mat(A)"), std::nullopt);
}

TEST(VocabularyLookups, InitialisationPutsRadiansBack) {
    AngleUnit = 0.5;
    InitVocabulary();
    EXPECT_EQ(AngleUnit, 1.0);
}

TEST(ReservedWords, VocabularyWordsAreReservedButNotNamesStartingWithDigits) {
    const struct {
        const char* name;
        bool reserved;
    } rows[] = {
        {"For", true},       {"for", true},       {"End If", true},  {"ExitFor", true},
        {"Next", true},      {"Case Else", true}, {"π", true},       {"PAI", true},
        {"pai", true},       {"DPaI", true},      {"Exp1", true},    {"Random", true},
        {"Randomize", true}, {"Sin(", true},      {"Gauss(", true},  {"INVMAT(", true},
        {".EQ.", true},      {"<=", true},        {"2Pai", false},   {"0.5π", false},
        {"2π", false},       {"1i", false},       {"1j", false},     {"9Next", false},
        {"x", false},        {"Format", false},   {"Ending", false}, {"", false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(IsReservedWord(row.name), row.reserved) << '"' << row.name << '"';
    }
}

TEST(ClassifyStatement, FirstKeywordInTableOrderAsAWholeWord) {
    const struct {
        const char* statement;
        std::int16_t code;
        const char* rest;
    } rows[] = {
        {"End If", kw::EndIf, ""},
        {"EndIf", kw::EndIf, ""},
        {"End", kw::End, ""},
        {"End Function", kw::End, ""},
        {"EndFunction", kw::End, ""},
        {"End Select", kw::EndSelect, ""},
        {"Exit For", kw::ExitFor, ""},
        {"ExitFor", kw::ExitFor, ""},
        {"Exit Do", kw::ExitDo, ""},
        {"Exit Function", kw::ExitFunction, ""},
        {"Case Else", kw::CaseElse, ""},
        {"CaseElse", kw::CaseElse, ""},
        {"Case 1, 3", kw::Case, "1, 3"},
        {"Else If x>1 Then", kw::ElseIf, "x>1 Then"},
        {"ElseIf x>1 Then", kw::ElseIf, "x>1 Then"},
        {"Else", kw::Else, ""},
        {"  For i = 1 To 3", kw::For, "i = 1 To 3"},
        {"for i=1 to 3", kw::For, "i=1 to 3"},
        {"Do While x<3", kw::Do, "While x<3"},
        {"Loop Until x", kw::Loop, "Until x"},
        {"Select Case k", kw::Select, "Case k"},
        {"Dim a(3)", kw::Dim, "a(3)"},
        {"Global g", kw::Global, "g"},
        {"Call F(1)", kw::Call, "F(1)"},
        {"Return   x+1", kw::Return, "x+1"},
        {"Function F(a)", kw::Function, "F(a)"},
        {"Next", kw::Next, ""},
        {"Format = 1", kw::kAssignmentCode, "Format = 1"},
        {"Ending = 2", kw::kAssignmentCode, "Ending = 2"},
        {"Elsewhere = 3", kw::kAssignmentCode, "Elsewhere = 3"},
        {"Do_it = 4", kw::kAssignmentCode, "Do_it = 4"},
        {"x = 1", kw::kAssignmentCode, "x = 1"},
        {"", kw::kAssignmentCode, ""},
    };
    for (const auto& row : rows) {
        std::string_view rest = "(unset)";
        EXPECT_EQ(ClassifyStatement(row.statement, rest), row.code) << '"' << row.statement << '"';
        EXPECT_EQ(rest, row.rest) << '"' << row.statement << '"';
    }
}

}  // namespace
}  // namespace lapdesk
