// The vocabulary menus and the language options with their questions.
#include <QMenu>

#include "window_fixture.h"

namespace lapdesk::testing {
namespace {

using MenusTest = WindowTest;

TEST_F(MenusTest, EntriesInsertTheirWords) {
    const struct {
        const char* action;
        const char* text;
        int caret;
    } rows[] = {
        {"MenueConst_0", "π", 1},              // "π,Pai：3.1415..." cut at ","
        {"MenueConst_3", "Exp1", 4},           // "Exp1：ｅ=2.718...." cut at "："
        {"BoolOp_0", ".And.", 5},              // ".And.,\" ＆ \""
        {"BoolOp_8", ".EQ.", 4},               // no separator: the whole caption
        {"MenueFunction_0", "Sin()", 4},       // the caret inside the brackets
        {"MenueFunction_13", "Cpx(,)", 5},     // "Cpx(,)：Cpx(a,b)=a+bj"
        {"MenueBoolFunc_0", "Boolean( )", 8},  // two back: inside the brackets
        {"MenueMatFunction_0", "Gauss()", 6},
    };
    for (const auto& row : rows) {
        Immediate()->clear();
        Immediate()->setFocus();
        Action(row.action)->trigger();
        EXPECT_EQ(Immediate()->text(), QString::fromUtf8(row.text)) << row.action;
        EXPECT_EQ(Immediate()->cursorPosition(), row.caret) << row.action;
    }
}

TEST_F(MenusTest, MenusFollowTheVocabulary) {
    EXPECT_EQ(Action("MenueConst_2")->text(), QStringLiteral("2π,0.5π,0.5Pai,HPai,HPi：1.570..."));
    EXPECT_EQ(Action("MenueCtWord_11")->text(), QStringLiteral("If  Then"));
    EXPECT_EQ(Action("MenueFunction_3")->text(), QStringLiteral("Atan() , Atn()"));
    EXPECT_EQ(Action("MenueFunction_4")->text(), QStringLiteral("Exp()")) << "Atn shares a line";
    EXPECT_EQ(Find<QMenu>("MenueCtWord")->actions().size(), 24);
}

TEST_F(MenusTest, KeywordsOnlyForThePrograms) {
    Immediate()->setFocus();
    EXPECT_FALSE(Action("MenueCtWord_0")->isEnabled());
    SetProgram(QString());
    Editor()->setFocus();
    EXPECT_TRUE(Action("MenueCtWord_0")->isEnabled());
    Action("MenueCtWord_4")->trigger();  // "ExitFor , Exit For": cut before the ","
    EXPECT_EQ(Editor()->toPlainText(), QStringLiteral("ExitFor "));
    Immediate()->setFocus();
    EXPECT_FALSE(Action("MenueCtWord_23")->isEnabled());
}

TEST_F(MenusTest, CaseQuestion) {
    const struct {
        QMessageBox::StandardButton answer;
        bool checked;  // MenuCaps afterwards
        bool variableKept;
    } rows[] = {
        {QMessageBox::Cancel, true, true},
        {QMessageBox::No, false, true},
        {QMessageBox::Yes, true, false},
    };
    for (const auto& row : rows) {
        const bool before = Action("MenuCaps")->isChecked();
        TypeLine(QStringLiteral("v = 1"));
        script->answers = {row.answer};
        script->questions.clear();
        Action("MenuCaps")->trigger();
        ASSERT_EQ(script->questions.size(), 1);
        EXPECT_EQ(script->questions[0],
                  QString(before ? QStringLiteral("これ以後変数の大文字小文字を区別しません")
                                 : QStringLiteral("これ以後変数の大文字小文字を区別します")) +
                      QStringLiteral("\r\n現在の変数を全て消去しますか？"));
        EXPECT_EQ(Action("MenuCaps")->isChecked(), row.checked);
        EXPECT_EQ(window->interpreter().caseSensitive(), row.checked);
        EXPECT_EQ(window->interpreter().ImmediatePage().NumofMemory() > 0, row.variableKept);
    }
}

TEST_F(MenusTest, ClearGlobalsQuestion) {
    const QString toKeep = QStringLiteral(
        "これ以後，大域変数を消去せずに，プログラムを解析します．\r\n"
        "そのために実行エラーが生ずる事があります！！");
    const QString toErase =
        QStringLiteral("これ以後，大域変数を一端消去してから，プログラムを解析します．\r\n");
    const struct {
        QMessageBox::StandardButton answer;
        const QString& question;
        bool checked;
    } rows[] = {
        {QMessageBox::No, toErase, false},
        {QMessageBox::Yes, toErase, true},
        {QMessageBox::No, toKeep, true},
        {QMessageBox::Yes, toKeep, false},
    };
    for (const auto& row : rows) {
        script->answers = {row.answer};
        script->questions.clear();
        Action("MenueClearGlVar")->trigger();
        EXPECT_EQ(script->questions, QStringList{row.question});
        EXPECT_EQ(Action("MenueClearGlVar")->isChecked(), row.checked);
    }
}

}  // namespace
}  // namespace lapdesk::testing
