// Code pages: the global page, the analysed flag, stored lines, the end
// test and function headers.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "session.h"

namespace lapdesk {
namespace {

// ---- The global page

// A page named Imidate in any letter case becomes the global page, where
// the immediate line then keeps globals.
TEST(GlobalPage, IsThePageNamedImidate) {
    for (const char* name : {"imidate", "IMIDATE"}) {
        Session s;
        ClsCode page(s.interpreter);
        page.SetPageIndex(3);
        page.SetPageName(name);
        EXPECT_EQ(&s.interpreter.ImmediatePage(), &page) << name;
        EXPECT_EQ(page.PageIndex(), -1) << name;
        ASSERT_TRUE(s.Line("g = 2").ok);
        EXPECT_EQ(page.NumofMemory(), 1) << name;
    }
    Session s;
    ClsCode& global = s.interpreter.ImmediatePage();
    ClsCode page(s.interpreter);
    page.SetPageIndex(3);
    page.SetPageName("Imidates");
    EXPECT_EQ(&s.interpreter.ImmediatePage(), &global);
    EXPECT_EQ(page.PageIndex(), 3);
}

// ---- The analysed flag

// Clearing the flag of the global page clears every program page; clearing
// it on a program page touches nothing else.
TEST(Analysed, ClearingReachesProgramPagesOnlyFromTheGlobalPage) {
    const struct {
        int cleared;  // -1 the immediate page, 0 Main, 1 the function page
        bool mainAfter;
        bool functionAfter;
    } rows[] = {{-1, false, false}, {0, false, true}, {1, true, false}};
    for (const auto& row : rows) {
        Session s;
        ASSERT_TRUE(s.Run({"a = F(1)", "End", "Function F(x)", "F = x", "End Function"}));
        ClsCode& global = s.Global();
        ClsCode& function = s.interpreter.Page(1);
        global.SetAnalized(true);
        ASSERT_TRUE(s.Main().Analized() && function.Analized());
        ClsCode& cleared =
            row.cleared < 0 ? global : s.interpreter.Page(static_cast<std::int16_t>(row.cleared));
        cleared.SetAnalized(false);
        EXPECT_EQ(global.Analized(), row.cleared >= 0) << row.cleared;
        EXPECT_EQ(s.Main().Analized(), row.mainAfter) << row.cleared;
        EXPECT_EQ(function.Analized(), row.functionAfter) << row.cleared;
    }
}

TEST(Analysed, ANewGlobalMakesProgramPagesAnalyseAgain) {
    Session s;
    ASSERT_TRUE(s.Run({"a = 1", "End"}));
    ASSERT_TRUE(s.Line("fresh = 1").ok);
    EXPECT_FALSE(s.Main().Analized());
}

// ---- Stored lines

// Storing at an index past the end appends; inside, it replaces.
TEST(StoredLines, StoringPastTheEndAppends) {
    Session s;
    ClsCode page(s.interpreter);
    page.SetCode(7, 40, "a = 1");
    page.SetCode(-3, 41, "b = 2");
    page.SetCode(1, 9, "c = 3");
    ASSERT_EQ(page.LineNum(), 2);
    std::int16_t lnNo = -1;
    EXPECT_EQ(page.Code(0, lnNo), "a = 1");
    EXPECT_EQ(lnNo, 40);
    EXPECT_EQ(page.Code(1, lnNo), "c = 3");
    EXPECT_EQ(lnNo, 9);
    EXPECT_EQ(page.Code(2, lnNo), "");
    EXPECT_EQ(lnNo, 9);
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

// ---- End test

TEST(BottomLine, IsTheFinalEnd) {
    const struct {
        std::vector<const char*> lines;
        bool closed;
    } rows[] = {{{}, false},          {{"a = 1", "End"}, true}, {{"End Function"}, true},
                {{"end"}, true},      {{"End If"}, false},      {{"End", "a = 1"}, false},
                {{"Endx = 1"}, false}};
    for (const auto& row : rows) {
        Session s;
        ClsCode page(s.interpreter);
        for (const char* line : row.lines)
            page.SetCode(page.LineNum(), 0, line);
        EXPECT_EQ(page.APc01BotomLine(), row.closed) << (row.lines.empty() ? "" : row.lines.back());
    }
}

// ---- Function headers

TEST(FunctionHeader, NamesThePageAndItsParameters) {
    const struct {
        const char* header;
        const char* pageName;  // empty: refused
        std::int16_t parameters;
    } rows[] = {{"Function Area(w, h)", "Area", 2},
                {"Function Seed()", "Seed", 0},
                {"Function Seed", "Seed", 0},
                {"Function F(a, a)", "", 0},
                {"Function 2F(a)", "", 0},
                {"Function PAI(a)", "", 0},
                {"Function F(Exp1)", "", 0},
                {"Function F(a", "", 0},
                {"F(a) = 1", "", 0}};
    for (const auto& row : rows) {
        Session s;
        ClsCode page(s.interpreter);
        page.SetPageIndex(1);
        page.SetCode(0, 0, row.header);
        const bool ok = *row.pageName != '\0';
        ASSERT_EQ(page.APc03DefineFunction(row.header), ok) << row.header;
        if (!ok) continue;
        EXPECT_EQ(page.PageName(), row.pageName);
        EXPECT_EQ(page.NumofArg(), row.parameters) << row.header;
    }
}

TEST(FunctionHeaders, AreOnlyAcceptedOnAOneLinePage) {
    Session s;
    ClsCode page(s.interpreter);
    page.SetCode(0, 0, "Function F(x)");
    page.SetCode(1, 1, "F = x");
    EXPECT_FALSE(page.APc03DefineFunction("Function F(x)"));
}

}  // namespace
}  // namespace lapdesk
