// Lines of the memory display, read from a real interpreter session.
#include <gtest/gtest.h>

#include "calculator/memory_lines.h"
#include "interp/interpreter.h"
#include "interp/recording_view.h"

namespace lapdesk {
namespace {

class MemoryLinesTest : public ::testing::Test {
  protected:
    void Run(const char* line) { ASSERT_TRUE(session.ImmediateLine(line).ok) << line; }
    ClsCode& Globals() { return session.ImmediatePage(); }

    RecordingView view;
    Interpreter session{view};
};

TEST_F(MemoryLinesTest, OneLinePerVariable) {
    Run("x = 1/3");
    Run("Dim V(3)");
    Run("Dim M(2,4)");
    Run("z = 1-2j");
    EXPECT_EQ(MemoryLines(Globals(), false),
              (std::vector<std::string>{"x=0.333333333333333", "V(3)", "M(2,4)", "z=1-2j"}));
    EXPECT_EQ(MemoryLine(Globals(), 0, true), "x=0.333333");
}

TEST_F(MemoryLinesTest, MatrixElementsWithJInsideI) {
    Run("Dim M(1,1)");
    Run("M(1,0) = 7");
    EXPECT_EQ(ArrayElementLines(Globals(), 0, false),
              (std::vector<std::string>{"(  0 ,  0 )=0", "(  0 ,  1 )=0", "(  1 ,  0 )=7",
                                        "(  1 ,  1 )=0"}));
}

TEST(ArrayIndexText, RightAlignedInThree) {
    const struct {
        int index;
        const char* text;
    } rows[] = {{0, "  0"}, {7, "  7"}, {42, " 42"}, {999, "999"}, {1000, "000"}, {1234, "234"}};
    for (const auto& row : rows)
        EXPECT_EQ(ArrayIndexText(row.index), row.text) << row.index;
}

}  // namespace
}  // namespace lapdesk
