// Variable memory of a page: names under the case switch, declarations,
// element addressing, erasing, and where assignments create variables.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "session.h"
#include "values/fault.h"

namespace lapdesk {
namespace {

// ---- Names and the case switch

// With the case switch off, the second spelling finds the first variable,
// whose stored name keeps the first spelling (the values are checked by the
// program files).
TEST(CaseSwitch, OffKeepsTheFirstSpelling) {
    Session s;
    s.interpreter.SetCaseSensitive(false);
    ASSERT_TRUE(s.Run({"a = 1", "A = A + 5", "Return a", "End"}));
    ASSERT_EQ(s.Main().NumofMemory(), 1);
    EXPECT_EQ(s.Main().MemoryName(0), "a");
}

// ---- Declarations

// Dim A(3) declares the elements 0..3. Declared twice it keeps A's values;
// any other shape afterwards fails.
TEST(Declaration, RepeatedKeepsTheValuesButNeverReshapes) {
    for (const char* other : {"Dim A(4)", "Dim A(3,0)", "Dim A"}) {
        Session s;
        ASSERT_TRUE(s.Line("Dim A(3)").ok);
        EXPECT_EQ(s.Global().MemoryTyp(0), 1);
        EXPECT_TRUE(s.Line("A(3) = 5").ok);
        EXPECT_FALSE(s.Line("A(4) = 5").ok);
        ASSERT_TRUE(s.Line("A(2) = 7").ok);
        EXPECT_TRUE(s.Line("Dim A(3)").ok);
        EXPECT_FALSE(s.Line(other).ok) << other;
        EXPECT_EQ(s.Global().NumofMemory(), 1);
        EXPECT_EQ(s.Global().MemoryLn(0), 3) << other;
        EXPECT_EQ(s.Line("A(2)").value.Re, 7.0);
    }
}

TEST(Declaration, ItemsBeforeAFailingOneStayDeclared) {
    Session s;
    ASSERT_TRUE(s.Line("Dim B(1)").ok);
    EXPECT_FALSE(s.Line("Dim A(2), B(5), C").ok);
    EXPECT_EQ(Session::IndexOf(s.Global(), "A"), 1);
    EXPECT_EQ(Session::IndexOf(s.Global(), "C"), -1);
}

// Sizes beyond the 16-bit range fail instead of wrapping to a small array.
TEST(Declaration, SizeOverflowFailsCleanly) {
    for (const char* line : {"Dim B(200,200)", "Dim B(32767)", "Dim B(-1)"}) {
        Session s;
        EXPECT_FALSE(s.Line(line).ok) << line;
        EXPECT_EQ(s.Global().NumofMemory(), 0) << line;
    }
    Session s;
    ASSERT_TRUE(s.Line("Dim B(32766)").ok);
    EXPECT_EQ(s.Global().MemoryLn(0), 32766);
}

TEST(Declaration, ParameterNameCannotBeDeclared) {
    Session s;
    EXPECT_FALSE(s.Run({"Call F(1)", "End", "Function F(x)", "Dim x", "End Function"}));
    ASSERT_EQ(s.view.messages.size(), 1u);
    EXPECT_TRUE(s.view.messages[0].starts_with("F: 2行目解析エラー\r\nDim x:"))
        << s.view.messages[0];
}

// ---- Element addressing

constexpr std::int32_t kComputeFlat = 65535;

// A(2,3): NI 2, NJ 3, Ln 11; element (i, j) at 3 * j + i. A flat index of
// -1 or above 65534 asks for it to be computed from the subscripts; only
// the flat index is checked against the end.
TEST(DirectElement, SetThenGet) {
    const struct {
        std::int16_t i, j;
        std::int32_t flat;  // as passed
        bool ok;
        std::int32_t flatAfter;  // as written back
    } rows[] = {{2, 3, kComputeFlat, true, 11},
                {3, 0, kComputeFlat, true, 3},
                {0, 4, kComputeFlat, false, 12},
                {1, 1, -1, true, 4},
                {1, 2, 70000, true, 7},
                {2, 3, 5, true, 5},
                {0, 0, 12, false, 12}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << "(" << row.i << ", " << row.j << ") flat " << row.flat);
        Session s;
        ASSERT_TRUE(s.Line("Dim A(2,3)").ok);
        ClsCode& g = s.Global();
        ASSERT_EQ(g.MemoryTyp(0), 2);
        ASSERT_EQ(g.MemoryLn(0), 11);
        std::int32_t flat = row.flat;
        EXPECT_EQ(g.AzVariableValueDirectSet(0, row.i, row.j, flat, 5.0, -1.0), row.ok);
        EXPECT_EQ(flat, row.flatAfter);
        for (std::int32_t k = 0; k <= 11; ++k) {
            double re = 0.0, im = 0.0;
            std::int32_t at = k;
            ASSERT_TRUE(g.AVariableValueDirectGet(0, 0, 0, at, re, im));
            const bool written = row.ok && k == row.flatAfter;
            EXPECT_EQ(re, written ? 5.0 : 0.0) << "flat " << k;
            EXPECT_EQ(im, written ? -1.0 : 0.0) << "flat " << k;
        }
    }
}

TEST(DirectElement, IndexesOutOfRangeAreBoundsFaults) {
    Session s;
    ASSERT_TRUE(s.Line("Dim A(2,3)").ok);
    ClsCode& g = s.Global();
    double re = 0.0, im = 0.0;
    std::int32_t flat = -2;
    EXPECT_THROW(g.AVariableValueDirectGet(0, 0, 0, flat, re, im), RuntimeFault);
    flat = -2;
    EXPECT_THROW(g.AzVariableValueDirectSet(0, 0, 0, flat, 1.0, 0.0), RuntimeFault);
    flat = kComputeFlat;  // (-1, 0) computes to -1, which is not "compute" again
    EXPECT_THROW(g.AzVariableValueDirectSet(0, -1, 0, flat, 1.0, 0.0), RuntimeFault);
    flat = 0;
    EXPECT_THROW(g.AVariableValueDirectGet(1, 0, 0, flat, re, im), RuntimeFault);
    EXPECT_THROW(g.MemoryName(1), RuntimeFault);
    EXPECT_THROW(g.MemoryLn(-1), RuntimeFault);
}

// ---- Erasing

TEST(Erase, OneVariableShiftsTheLaterOnesAndClearsAnalysis) {
    Session s;
    ASSERT_TRUE(s.Run({"a = 1", "b = 2", "c = 3", "End"}));
    ClsCode& main = s.Main();
    ASSERT_TRUE(main.Analized());
    main.AEraseMemory(0);
    EXPECT_FALSE(main.Analized());
    ASSERT_EQ(main.NumofMemory(), 2);
    EXPECT_EQ(main.MemoryName(0), "b");
    EXPECT_EQ(main.MemoryName(1), "c");
    double re = 0.0, im = 0.0;
    std::int32_t flat = 0;
    ASSERT_TRUE(main.AVariableValueDirectGet(0, 0, 0, flat, re, im));
    EXPECT_EQ(re, 2.0);
    EXPECT_THROW(main.AEraseMemory(2), RuntimeFault);
}

TEST(Erase, AllMemoryOfAPage) {
    Session s;
    ASSERT_TRUE(s.Run({"a = F(1)", "End", "Function F(x)", "y = x", "F = y", "End Function"}));
    ClsCode& f = s.interpreter.Page(1);
    ASSERT_EQ(f.NumofArg(), 1);
    f.AEraseMemorys();
    EXPECT_EQ(f.NumofMemory(), 0);
    EXPECT_EQ(f.NumofArg(), 0);
    EXPECT_FALSE(f.Analized());
}

// ---- Reading a name again after what it finds has changed

// The same text is read often enough to be kept with where its name was
// found; after the change it must find the variable that now answers it.
TEST(NameReadAgain, FindsWhatNowAnswersIt) {
    struct Row {
        const char* what;
        std::vector<const char*> setup;
        const char* read;
        std::function<void(Session&)> change;
        bool okBefore;
        double after;
    };
    const std::vector<Row> rows = {
        {"erasing shifts the later variables",
         {"a = 1", "b = 2"},
         "b",
         [](Session& s) { s.Global().AEraseMemory(0); },
         true,
         2.0},
        {"the case switch turned off",
         {"a = 3"},
         "A",
         [](Session& s) { s.interpreter.SetCaseSensitive(false); },
         false,
         3.0},
        {"a global declared over Main's variable",
         {},
         "x",
         [](Session& s) { ASSERT_TRUE(s.Line("Dim x").ok); },
         true,
         0.0},
        {"Main's variables gone with a new program",
         {},
         "x",
         [](Session& s) {
             ASSERT_TRUE(s.Run({"y = 1", "End"}));
         },
         true,
         -1.0},
    };
    for (const Row& row : rows) {
        Session s;
        ASSERT_TRUE(s.Run({"x = 5", "End"}));
        for (const char* line : row.setup)
            ASSERT_TRUE(s.Line(line).ok) << row.what;
        for (int k = 0; k < 3; ++k)
            EXPECT_EQ(s.Line(row.read).ok, row.okBefore) << row.what;
        row.change(s);
        const ImmediateResult result = s.Line(row.read);
        EXPECT_EQ(result.ok, row.after >= 0.0) << row.what;
        if (result.ok) {
            EXPECT_EQ(result.value.Re, row.after) << row.what;
        }
    }
}

// ---- Where assignments create variables

// A function's locals stay on its page; a global assigned first inside a
// function is found and written, and no local is created for it.
TEST(Creation, FunctionsWriteGlobalsAndKeepTheirLocals) {
    Session s;
    ASSERT_TRUE(s.Line("g = 1").ok);
    ASSERT_TRUE(s.Run(ProgramText({"Return F(2)", "End", "Function F(x)", "g = 7", "t = x * 3",
                                   "F = t", "End Function"}),
                      false));
    EXPECT_EQ(s.view.kai, "Result=6");
    EXPECT_EQ(s.Main().NumofMemory(), 0);
    EXPECT_EQ(s.Global().NumofMemory(), 1);
    EXPECT_EQ(s.Line("g").value.Re, 7.0);
    EXPECT_EQ(s.interpreter.Page(1).NumofMemory(), 1);
    EXPECT_EQ(Session::IndexOf(s.interpreter.Page(1), "t"), 0);
}

}  // namespace
}  // namespace lapdesk
