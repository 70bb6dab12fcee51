// Code pages: the global page, the analysed flag, stored lines, the end
// test and function headers.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "session.h"

namespace lapdesk {
namespace {

// ---- The global page

class GlobalPageName : public ::testing::TestWithParam<const char*> {};

TEST_P(GlobalPageName, MakesThePageTheGlobalOne) {
    Session s;
    ClsCode page(s.interpreter);
    page.SetPageIndex(3);
    page.SetPageName(GetParam());
    EXPECT_EQ(&s.interpreter.ImmediatePage(), &page);
    EXPECT_EQ(page.PageIndex(), -1);
    // Its memory is where the immediate line now keeps globals.
    ASSERT_TRUE(s.Line("g = 2").ok);
    EXPECT_EQ(page.NumofMemory(), 1);
}

INSTANTIATE_TEST_SUITE_P(Pages, GlobalPageName, ::testing::Values("Imidate", "imidate", "IMIDATE"));

TEST(GlobalPage, OtherNamesLeaveTheGlobalPageAlone) {
    Session s;
    ClsCode& global = s.interpreter.ImmediatePage();
    ClsCode page(s.interpreter);
    page.SetPageIndex(3);
    page.SetPageName("Imidates");
    EXPECT_EQ(&s.interpreter.ImmediatePage(), &global);
    EXPECT_EQ(page.PageIndex(), 3);
}

// ---- The analysed flag

struct AnalysedRow {
    const char* name;
    int cleared;  // -1 the immediate page, 0 Main, 1 the function page
    bool mainAfter;
    bool functionAfter;
};

class ClearingAnalysed : public ::testing::TestWithParam<AnalysedRow> {};

TEST_P(ClearingAnalysed, ReachesProgramPagesOnlyFromTheGlobalPage) {
    const AnalysedRow& row = GetParam();
    Session s;
    ASSERT_TRUE(s.Run({"a = F(1)", "End", "Function F(x)", "F = x", "End Function"}));
    ClsCode& global = s.Global();
    ClsCode& main = s.Main();
    ClsCode& function = s.interpreter.Page(1);
    global.SetAnalized(true);
    ASSERT_TRUE(main.Analized());
    ASSERT_TRUE(function.Analized());
    ClsCode& cleared =
        row.cleared < 0 ? global : s.interpreter.Page(static_cast<std::int16_t>(row.cleared));
    cleared.SetAnalized(false);
    EXPECT_EQ(global.Analized(), row.cleared >= 0);
    EXPECT_EQ(main.Analized(), row.mainAfter);
    EXPECT_EQ(function.Analized(), row.functionAfter);
}

INSTANTIATE_TEST_SUITE_P(Pages, ClearingAnalysed,
                         ::testing::Values(AnalysedRow{"GlobalPage", -1, false, false},
                                           AnalysedRow{"Main", 0, false, true},
                                           AnalysedRow{"FunctionPage", 1, true, false}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(Analysed, ANewGlobalMakesProgramPagesAnalyseAgain) {
    Session s;
    ASSERT_TRUE(s.Run({"a = 1", "End"}));
    ASSERT_TRUE(s.Line("fresh = 1").ok);
    EXPECT_FALSE(s.Main().Analized());
}

// ---- Stored lines

TEST(StoredLines, StoringPastTheEndAppends) {
    Session s;
    ClsCode page(s.interpreter);
    page.SetCode(7, 40, "a = 1");
    page.SetCode(-3, 41, "b = 2");
    ASSERT_EQ(page.LineNum(), 2);
    std::int16_t lnNo = -1;
    EXPECT_EQ(page.Code(0, lnNo), "a = 1");
    EXPECT_EQ(lnNo, 40);
    EXPECT_EQ(page.Code(1, lnNo), "b = 2");
    EXPECT_EQ(lnNo, 41);
    EXPECT_EQ(page.Line(1).CodeIndex, -999);
    EXPECT_EQ(page.Line(1).Link, -999);
}

TEST(StoredLines, StoringInsideReplaces) {
    Session s;
    ClsCode page(s.interpreter);
    page.SetCode(0, 1, "a = 1");
    page.SetCode(1, 2, "End");
    page.SetCode(0, 9, "a = 2");
    ASSERT_EQ(page.LineNum(), 2);
    std::int16_t lnNo = -1;
    EXPECT_EQ(page.Code(0, lnNo), "a = 2");
    EXPECT_EQ(lnNo, 9);
}

TEST(StoredLines, ReadingPastTheEndGivesNothing) {
    Session s;
    ClsCode page(s.interpreter);
    page.SetCode(0, 1, "a = 1");
    std::int16_t lnNo = 77;
    EXPECT_EQ(page.Code(1, lnNo), "");
    EXPECT_EQ(lnNo, 77);
}

TEST(StoredLines, ChangingALineClearsAnalysis) {
    Session s;
    ClsCode page(s.interpreter);
    page.SetPageName("Scratch");
    page.SetCode(0, 0, "a = 1");
    page.SetCode(1, 1, "End");
    ASSERT_TRUE(page.APc01CodeAnalize());
    ASSERT_TRUE(page.Analized());
    page.SetCode(0, 0, "a = 2");
    EXPECT_FALSE(page.Analized());
}

TEST(StoredLines, AnalysisWithoutTheFinalEndFails) {
    Session s;
    ClsCode page(s.interpreter);
    page.SetPageName("Scratch");
    page.SetCode(0, 0, "a = 1");
    page.SetCode(1, 1, "b = 2");
    EXPECT_FALSE(page.APc01CodeAnalize());
    EXPECT_FALSE(page.Analized());
    ASSERT_EQ(s.view.messages.size(), 1u);
    EXPECT_TRUE(s.view.messages[0].starts_with("Scratch: 2行目解析エラー\r\nb = 2:"))
        << s.view.messages[0];
}

TEST(StoredLines, ThePageRunsWhatItStores) {
    Session s;
    ClsCode page(s.interpreter);
    page.SetPageName("Scratch");
    page.SetCode(0, 0, "a = 6");
    page.SetCode(1, 1, "Return a * 7");
    page.SetCode(2, 2, "End");
    double re = 0.0, im = 0.0;
    ASSERT_TRUE(page.APc02CodeExecute(re, im));
    EXPECT_EQ(re, 42.0);
    EXPECT_TRUE(s.view.messages.empty());
}

// ---- End test

struct BottomRow {
    const char* name;
    std::vector<const char*> lines;
    bool closed;
};

class BottomLine : public ::testing::TestWithParam<BottomRow> {};

TEST_P(BottomLine, IsTheFinalEnd) {
    Session s;
    ClsCode page(s.interpreter);
    for (const char* line : GetParam().lines)
        page.SetCode(page.LineNum(), 0, line);
    EXPECT_EQ(page.APc01BotomLine(), GetParam().closed);
}

INSTANTIATE_TEST_SUITE_P(Pages, BottomLine,
                         ::testing::Values(BottomRow{"Empty", {}, false},
                                           BottomRow{"End", {"a = 1", "End"}, true},
                                           BottomRow{"EndFunction", {"End Function"}, true},
                                           BottomRow{"EndFunctionJoined", {"EndFunction"}, true},
                                           BottomRow{"LowerCase", {"end"}, true},
                                           BottomRow{"EndIf", {"End If"}, false},
                                           BottomRow{"EndSelect", {"End Select"}, false},
                                           BottomRow{"EndBeforeLastLine", {"End", "a = 1"}, false},
                                           BottomRow{"NameBeginningWithEnd", {"Endx = 1"}, false}),
                         [](const auto& info) { return std::string(info.param.name); });

// ---- Function headers

struct HeaderRow {
    const char* name;
    const char* header;
    bool ok;
    const char* pageName;
    std::int16_t parameters;
};

class FunctionHeader : public ::testing::TestWithParam<HeaderRow> {};

TEST_P(FunctionHeader, NamesThePageAndItsParameters) {
    const HeaderRow& row = GetParam();
    Session s;
    ClsCode page(s.interpreter);
    page.SetPageIndex(1);
    page.SetCode(0, 0, row.header);
    EXPECT_EQ(page.APc03DefineFunction(row.header), row.ok);
    if (!row.ok) return;
    EXPECT_EQ(page.PageName(), row.pageName);
    EXPECT_EQ(page.NumofArg(), row.parameters);
}

INSTANTIATE_TEST_SUITE_P(
    Pages, FunctionHeader,
    ::testing::Values(HeaderRow{"TwoParameters", "Function Area(w, h)", true, "Area", 2},
                      HeaderRow{"NoParameters", "Function Seed()", true, "Seed", 0},
                      HeaderRow{"NoBrackets", "Function Seed", true, "Seed", 0},
                      HeaderRow{"RepeatedParameter", "Function F(a, a)", false, "", 0},
                      HeaderRow{"NameStartsWithDigit", "Function 2F(a)", false, "", 0},
                      HeaderRow{"ReservedName", "Function PAI(a)", false, "", 0},
                      HeaderRow{"ReservedParameter", "Function F(Exp1)", false, "", 0},
                      HeaderRow{"UnclosedBracket", "Function F(a", false, "", 0},
                      HeaderRow{"NotAHeader", "F(a) = 1", false, "", 0}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(FunctionHeaders, AreOnlyAcceptedOnAOneLinePage) {
    Session s;
    ClsCode page(s.interpreter);
    page.SetCode(0, 0, "Function F(x)");
    page.SetCode(1, 1, "F = x");
    EXPECT_FALSE(page.APc03DefineFunction("Function F(x)"));
}

}  // namespace
}  // namespace lapdesk
