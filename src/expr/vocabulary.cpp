#include "expr/vocabulary.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "expr/keywords.h"
#include "values/builtins.h"
#include "values/complex.h"

namespace lapdesk {

namespace {

char Lower(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

std::vector<OperatorSynonym> OperatorSynonyms() {
    // Two-character operators come before their one-character prefixes, so
    // replacing in this order never splits "<=", ">=", "=<", "=>", "<>", "><".
    return {{" And ", ".And."}, {" & ", ".And."}, {" Or ", ".Or."}, {" ~ ", ".Or."},
            {"Not ", ".Not."},  {"! ", ".Not."},  {"!=", ".NE."},   {"<>", ".NE."},
            {"><", ".NE."},     {"<=", ".LE."},   {"=<", ".LE."},   {">=", ".GE."},
            {"=>", ".GE."},     {">", ".GT."},    {"<", ".LT."},    {"=", ".EQ."}};
}

std::vector<CanonicalOperator> CanonicalOperators() {
    return {{".And.", ".And.,\" ＆ \""},
            {".Or.", ".Or.,\" ~ \""},
            {".Not.", ".Not.,\"! \""},
            {".NE.", ".NE.,\"!=\",\"><\""},
            {".LE.", ".LE.,\"=<\""},
            {".GE.", ".GE.,\"=>\""},
            {".GT.", ".GT."},
            {".LT.", ".LT."},
            {".EQ.", ".EQ."}};
}

std::vector<StatementKeyword> Keywords() {
    return {{"Global", kw::Global},
            {"Dim", kw::Dim},
            {"Call", kw::Call},
            {"For", kw::For},
            {"Exit For", kw::ExitFor},
            {"ExitFor", kw::ExitFor},
            {"Next", kw::Next},
            {"Do", kw::Do},
            {"ExitDo", kw::ExitDo},
            {"Exit Do", kw::ExitDo},
            {"Loop", kw::Loop},
            {"While", kw::While},
            {"Until", kw::Until},
            {"If", kw::If},
            {"ElseIf", kw::ElseIf},
            {"Else If", kw::ElseIf},
            {"Else", kw::Else},
            {"EndIf", kw::EndIf},
            {"End If", kw::EndIf},
            {"Select", kw::Select},
            {"CaseElse", kw::CaseElse},
            {"Case Else", kw::CaseElse},
            {"Case", kw::Case},
            {"EndSelect", kw::EndSelect},
            {"End Select", kw::EndSelect},
            {"Function", kw::Function},
            {"ExitFunction", kw::ExitFunction},
            {"Exit Function", kw::ExitFunction},
            {"EndFunction", kw::End},
            {"End Function", kw::End},
            {"Return", kw::Return},
            {"End", kw::End}};
}

std::vector<std::string> KeywordMenu() {
    return {"Global ",
            "Dim ",
            "Call ",
            "For ",
            "ExitFor , Exit For",
            "Next",
            "Do",
            "ExitDo , Exit Do",
            "Loop ",
            "While ",
            "Until ",
            "If  Then",
            "ElseIf  Then , Else If   Then",
            "Else",
            "EndIf , End If",
            "Select Case",
            "Case ",
            "CaseElse , Case Else",
            "EndSelect , End Select",
            "Function ",
            "ExitFunction , Exit Function",
            "EndFunction , End Function",
            "Return ",
            "End"};
}

enum ConstantGroup : std::int16_t { kPi, kTwoPi, kHalfPi, kE, kImaginaryUnit, kRandom, kRandomize };

std::vector<NamedConstant> Constants() {
    return {{"π", kPi},
            {"PAI", kPi},
            {"2π", kTwoPi},
            {"DPI", kTwoPi},
            {"DPaI", kTwoPi},
            {"2Pai", kTwoPi},
            {"0.5π", kHalfPi},
            {"HPI", kHalfPi},
            {"HPaI", kHalfPi},
            {"0.5PaI", kHalfPi},
            {"Exp1", kE},
            {"1i", kImaginaryUnit},
            {"1j", kImaginaryUnit},
            {"Random", kRandom},
            {"Randomize", kRandomize}};
}

std::vector<std::string> ConstantHelp() {
    // The third line begins with "2π," although it describes π/2; it is kept so.
    return {"π,Pai：3.1415...",     "2π,DPai,DPi：6.2831...", "2π,0.5π,0.5Pai,HPai,HPi：1.570...",
            "Exp1：ｅ=2.718....",   "1i,1j：Sqrt(-1)",        "Random：乱数",
            "Randomize：乱数初期化"};
}

std::vector<ScalarFunction> ScalarFunctions() {
    return {{"Sin(", ScalarCode::Sin, 1, 1, "Sin()"},
            {"Cos(", ScalarCode::Cos, 1, 1, "Cos()"},
            {"Tan(", ScalarCode::Tan, 1, 1, "Tan()"},
            {"Atan(", ScalarCode::Atan, 1, 1, "Atan() , Atn()"},
            {"Atn(", ScalarCode::Atan, 1, 1, ""},
            {"Exp(", ScalarCode::Exp, 1, 1, "Exp()"},
            {"Log(", ScalarCode::Log, 1, 1, "Log()"},
            {"Log10(", ScalarCode::Log10, 1, 1, "Log10()"},
            {"Log2(", ScalarCode::Log2, 1, 1, "Log2()"},
            {"Sqrt(", ScalarCode::Sqrt, 1, 1, "Sqrt() , Sqr()"},
            {"Sqr(", ScalarCode::Sqrt, 1, 1, ""},
            {"Qbic(", ScalarCode::Qbic, 1, 1, "Qbic()"},
            {"Sinh(", ScalarCode::Sinh, 1, 1, "Sinh()"},
            {"Cosh(", ScalarCode::Cosh, 1, 1, "Cosh()"},
            {"Tanh(", ScalarCode::Tanh, 1, 1, "Tanh()"},
            {"Cpx(", ScalarCode::Cpx, 2, 2, "Cpx(,)：Cpx(a,b)=a+bj"},
            {"Conj(", ScalarCode::Conj, 1, 1, "Conj()：共役"},
            {"Real(", ScalarCode::Real, 1, 1, "Real()：実部"},
            {"Image(", ScalarCode::Image, 1, 1, "Image()：虚部"},
            {"Abs(", ScalarCode::Abs, 1, 1, "Abs()：絶対値"},
            {"Arg(", ScalarCode::Arg, 1, 1, "Arg()：偏角"},
            {"Integer(", ScalarCode::Integer, 1, 1, "Integer()：整数化"},
            {"Power(", ScalarCode::Power, 2, 2, "Power(a,b)：a^b"},
            {"Random(", ScalarCode::Random, 0, 1, "Random()：乱数"},
            {"Randomize(", ScalarCode::Randomize, 0, 1, "Randomize()：乱数初期化"},
            {"Boolean(", std::nullopt, 1, 1, "Boolean()：論理評価(真=1,偽=0)"}};
}

std::vector<MatrixFunction> MatrixFunctions() {
    return {
        {"Gauss(", MatrixCode::Gauss, MatrixResult::Vector,
         "'  書式：X=Gauss(A,B) → X(i)=Inv{A(i,j)}･B(j)", "'連立方程式 A(i,j)･X(j)=B(i) の解"},
        {"MatxVec(", MatrixCode::MatxVec, MatrixResult::Vector,
         "'  書式：C=MatxVec(A,B) → C(i)=ΣA(i,k)･B(k)", "'マトリクス A とベクトル B の積"},
        {"MatxMat(", MatrixCode::MatxMat, MatrixResult::Matrix,
         "'  書式：C=MatxMat(A,B) → C(i,j)=ΣA(i,k)･B(k,j)", "'マトリクス A とマトリクス B の積"},
        {"MatI1(", MatrixCode::MatI1, MatrixResult::Scalar, "'  書式：I1=MatI1(A) → I1=ΣA(i,i)",
         "'マトリクス A の第一不変量"},
        {"MatJ2(", MatrixCode::MatJ2, MatrixResult::Scalar,
         "'  書式：J2=MatJ2(A) → J2=ΣΣA(i,j)･B(i,j)", "'マトリクス A の偏差成分の第二不変量"},
        {"MatI3(", MatrixCode::MatI3, MatrixResult::Scalar, "'  書式：I3=MatI3(A) → I3=|A(i,j)|",
         "'マトリクス A の第三不変量"},
        {"INVMAT(", MatrixCode::InvMat, MatrixResult::Matrix,
         "'  書式：InvA=MatInv(A) → InvA(i,j)=Inv{A(i,j)}", "'逆行列"}};
}

Vocabulary& Tables() {
    static Vocabulary tables;
    return tables;
}

bool& Initialised() {
    static bool initialised = false;
    return initialised;
}

}  // namespace

void InitVocabulary() {
    if (!Initialised()) {
        Vocabulary& v = Tables();
        v.operatorSynonyms = OperatorSynonyms();
        v.operators = CanonicalOperators();
        v.keywords = Keywords();
        v.keywordMenu = KeywordMenu();
        v.constants = Constants();
        v.constantHelp = ConstantHelp();
        v.scalarFunctions = ScalarFunctions();
        v.matrixFunctions = MatrixFunctions();
        Initialised() = true;
    }
    AngleUnit = 1.0;
    ReseedRandom();
}

const Vocabulary& GetVocabulary() {
    if (!Initialised()) InitVocabulary();
    return Tables();
}

bool SameWord(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                              [](char x, char y) { return Lower(x) == Lower(y); });
}

bool StartsWithWord(std::string_view text, std::string_view word) {
    return text.size() >= word.size() && SameWord(text.substr(0, word.size()), word);
}

std::optional<std::size_t> FindScalarFunction(std::string_view text) {
    const auto& functions = GetVocabulary().scalarFunctions;
    for (std::size_t i = 0; i < functions.size(); ++i) {
        if (StartsWithWord(text, functions[i].name)) return i;
    }
    return std::nullopt;
}

std::optional<std::size_t> FindMatrixFunction(std::string_view text) {
    const auto& functions = GetVocabulary().matrixFunctions;
    for (std::size_t i = 0; i < functions.size(); ++i) {
        if (StartsWithWord(text, functions[i].name)) return i;
    }
    return std::nullopt;
}

bool IsNamedConstant(std::string_view name) {
    const auto& constants = GetVocabulary().constants;
    return std::any_of(constants.begin(), constants.end(), [&](const NamedConstant& constant) {
        return SameWord(name, constant.name);
    });
}

std::optional<Complex> ConstantValue(std::string_view name) {
    for (const NamedConstant& constant : GetVocabulary().constants) {
        if (!SameWord(name, constant.name)) continue;
        const double pi = 4.0 * std::atan(1.0);
        switch (constant.group) {
            case kPi:
                return Complex{pi, 0.0};
            case kTwoPi:
                return Complex{2.0 * pi, 0.0};
            case kHalfPi:
                return Complex{pi / 2.0, 0.0};
            case kE:
                return CplExp({1.0, 0.0});
            case kImaginaryUnit:
                return Complex{0.0, 1.0};
            case kRandom:
                return Complex{NextRandom(), 0.0};
            case kRandomize:
                ReseedRandom();
                return Complex{NextRandom(), 0.0};
        }
    }
    return std::nullopt;
}

bool IsReservedWord(std::string_view name) {
    if (name.empty() || (name.front() >= '0' && name.front() <= '9')) return false;
    const Vocabulary& v = GetVocabulary();
    const auto matches = [&](std::string_view word) { return SameWord(name, word); };
    return std::any_of(v.keywords.begin(), v.keywords.end(),
                       [&](auto& k) { return matches(k.word); }) ||
           std::any_of(v.operatorSynonyms.begin(), v.operatorSynonyms.end(),
                       [&](auto& o) { return matches(o.synonym) || matches(o.canonical); }) ||
           std::any_of(v.constants.begin(), v.constants.end(),
                       [&](auto& c) { return matches(c.name); }) ||
           std::any_of(v.scalarFunctions.begin(), v.scalarFunctions.end(),
                       [&](auto& f) { return matches(f.name); }) ||
           std::any_of(v.matrixFunctions.begin(), v.matrixFunctions.end(),
                       [&](auto& f) { return matches(f.name); });
}

std::optional<std::string_view> UnknownNameHint(std::string_view name) {
    static constexpr std::pair<std::string_view, std::string_view> kHints[] = {
        {"pi", "（円周率は PAI または π）"},
        {"tau", "（2π は DPI または 2π）"},
        {"e", "（自然対数の底は Exp1）"},
        {"i", "（虚数単位は 1i）"},
        {"j", "（虚数単位は 1j）"}};
    for (const auto& [spelling, hint] : kHints) {
        if (SameWord(name, spelling)) return hint;
    }
    return std::nullopt;
}

}  // namespace lapdesk
