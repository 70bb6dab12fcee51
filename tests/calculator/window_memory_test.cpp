// The memory display: page and global lists, the array panel, deleting one
// variable and the clearing buttons.
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>

#include "window_fixture.h"

namespace lapdesk::testing {
namespace {

class MemoryTest : public WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        for (const char* line : {"Dim A(3)", "A(2) = 5", "x = 1+2j", "Dim M(1,2)"}) {
            TypeLine(QString::fromLatin1(line));
        }
        SetProgram(QStringLiteral("Dim B(1)\nt = 4\nB(1) = 2j\nReturn t\nEnd"));
        Click("ButtonPrgRun");
        ASSERT_EQ(Kai(), QStringLiteral("Result=4"));
        Action("MenueShowMemory")->trigger();
    }
    QListWidget* PageList() { return Find<QListWidget>("MemoList_0"); }
    QListWidget* GlobalList() { return Find<QListWidget>("MemoList_1"); }
    QString Label(const char* name) { return Find<QLabel>(name)->text(); }
};

TEST_F(MemoryTest, ListsPageAndGlobalVariables) {
    EXPECT_TRUE(Find<QWidget>("FrmMemory")->isVisible());
    EXPECT_EQ(Find<QComboBox>("ComboSelectPage")->currentText(), QStringLiteral("Main"));
    EXPECT_EQ(Find<QGroupBox>("MFrame")->title(), QStringLiteral("Main 変数"));
    EXPECT_EQ(Find<QGroupBox>("MFrame")->toolTip(), QStringLiteral("Main 中で使用された変数"));
    EXPECT_EQ(Rows(PageList()), (QStringList{"B(1)", "t=4"}));
    EXPECT_EQ(Rows(GlobalList()), (QStringList{"A(3)", "x=1+2j", "M(1,2)"}));
    EXPECT_EQ(Label("MemorysLb"), QStringLiteral("2"));
    EXPECT_EQ(Label("MemorysLbG"), QStringLiteral("3"));
}

TEST_F(MemoryTest, ArrayPanelNamesTheArrayAndListsEveryElement) {
    DoubleClickRow(GlobalList(), 1);
    EXPECT_FALSE(Find<QWidget>("FrmArryValues")->isVisible()) << "a scalar opens nothing";
    DoubleClickRow(GlobalList(), 0);
    auto* panel = Find<QGroupBox>("FrmArryValues");
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->title(), QStringLiteral("Global 配列 A(3) の値"));
    EXPECT_EQ(Rows(Find<QListWidget>("ArryList")),
              (QStringList{"(  0 )=0", "(  1 )=0", "(  2 )=5", "(  3 )=0"}));
    EXPECT_FALSE(Find<QWidget>("CalcuFrame")->isEnabled());
    Click("ButtonCloseArray");
    EXPECT_FALSE(panel->isVisible());
    EXPECT_TRUE(Find<QWidget>("CalcuFrame")->isEnabled());

    DoubleClickRow(PageList(), 0);
    EXPECT_EQ(panel->title(), QStringLiteral("Main 配列  B(1) の値"));
    EXPECT_EQ(Rows(Find<QListWidget>("ArryList")), (QStringList{"(  0 )=0", "(  1 )=2j"}));
}

TEST_F(MemoryTest, CtrlDoubleClickDeletesOneVariable) {
    DoubleClickRow(GlobalList(), 1, Qt::ControlModifier);
    EXPECT_EQ(Rows(GlobalList()), (QStringList{"A(3)", "M(1,2)"}));
    EXPECT_EQ(Label("MemorysLbG"), QStringLiteral("2"));
    DoubleClickRow(PageList(), 1, Qt::ControlModifier);
    EXPECT_EQ(Rows(PageList()), (QStringList{"B(1)"}));
}

TEST_F(MemoryTest, ClearingButtons) {
    Click("ButtonClearPageMemory");
    EXPECT_TRUE(Rows(PageList()).isEmpty());
    EXPECT_EQ(Label("MemorysLb"), QStringLiteral("0"));
    EXPECT_EQ(Rows(GlobalList()).size(), 3);
    EXPECT_FALSE(window->interpreter().ProgramAnalysed());

    Click("ButtonClearGlobMemory");
    EXPECT_TRUE(Rows(GlobalList()).isEmpty());
    EXPECT_EQ(Label("MemorysLbG"), QStringLiteral("0"));
    EXPECT_EQ(window->interpreter().ImmediatePage().NumofMemory(), 0);

    TypeLine(QStringLiteral("y = 1"));
    Click("ButtonClearALLMemory");
    EXPECT_EQ(window->interpreter().ImmediatePage().NumofMemory(), 0);
    EXPECT_TRUE(Rows(GlobalList()).isEmpty());
    EXPECT_EQ(Label("MemorysLbG"), QString());
}

TEST_F(MemoryTest, WideElementShowsInFull) {
    TypeLine(QStringLiteral("A(1) = Sqrt(2)+Sqrt(3)*1j"));
    DoubleClickRow(GlobalList(), 0);
    auto* list = Find<QListWidget>("ArryList");
    list->setFixedWidth(100);
    QApplication::processEvents();
    auto* full = Find<QLabel>("ArryFullText");
    list->setCurrentRow(1);
    EXPECT_TRUE(full->isVisible());
    EXPECT_EQ(full->text(), QStringLiteral("(  1 )=1.4142135623731+1.73205080756888j"));
    list->setCurrentRow(0);
    EXPECT_FALSE(full->isVisible()) << "a short element fits the list";
}

}  // namespace
}  // namespace lapdesk::testing
