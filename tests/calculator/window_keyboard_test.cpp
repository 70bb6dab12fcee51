// The on-screen keyboard: character keys in both layers, the keypad, and the
// control keys acting on the active text box.
#include <QApplication>
#include <QClipboard>
#include <QSet>

#include "calculator/keyboard_layers.h"

#include "window_fixture.h"

namespace lapdesk::testing {
namespace {

class KeyboardTest : public WindowTest {
  protected:
    void Key(int index) { Click(QStringLiteral("Key_%1").arg(index).toLatin1().constData()); }
    void TenKey(int index) { Click(QStringLiteral("TenKey_%1").arg(index).toLatin1().constData()); }
    // Presses the control key with this caption.
    void Control(const QString& caption) {
        for (QPushButton* key : window->findChildren<QPushButton*>()) {
            if (key->objectName().startsWith(QStringLiteral("Ctlkey_")) && key->text() == caption) {
                QTest::mouseClick(key, Qt::LeftButton);
                return;
            }
        }
        ADD_FAILURE() << "no control key " << caption.toStdString();
    }
    // The label as the key shows it ("&&" is how a button shows "&").
    QString KeyText(int index) {
        QPushButton* key =
            Find<QPushButton>(QStringLiteral("Key_%1").arg(index).toLatin1().constData());
        return key->text().replace(QStringLiteral("&&"), QStringLiteral("&"));
    }
};

TEST_F(KeyboardTest, CharacterKeysInsertAtTheCaret) {
    Immediate()->setFocus();
    for (int key : {0, 38, 1, 47, 12, 11})
        Key(key);  // 1 / 2 Space a Tab
    EXPECT_EQ(Immediate()->text(), QStringLiteral("1/2 a    "));
    Immediate()->setCursorPosition(1);
    Key(10);  // π
    EXPECT_EQ(Immediate()->text(), QStringLiteral("1π/2 a    "));
    EXPECT_EQ(Immediate()->cursorPosition(), 2);
    Immediate()->setSelection(0, 2);
    Key(1);  // replaces the selection
    EXPECT_EQ(Immediate()->text(), QStringLiteral("2/2 a    "));
    EXPECT_EQ(Immediate()->cursorPosition(), 1);
    EXPECT_FALSE(Immediate()->hasSelectedText());
}

TEST_F(KeyboardTest, ShiftedLayer) {
    Immediate()->setFocus();
    EXPECT_EQ(KeyText(12), QStringLiteral("a"));
    Control(QStringLiteral("CAPS"));
    const struct {
        int key;
        const char* label;
    } shifted[] = {{0, "!"},  {1, ""},   {2, "#"},      {7, "{"},  {8, "}"},
                   {9, ""},   {10, "π"}, {12, "A"},     {37, "Z"}, {38, "?"},
                   {44, "+"}, {45, "="}, {47, "Space"}, {48, "~"}, {50, "|"}};
    for (const auto& s : shifted)
        EXPECT_EQ(KeyText(s.key), QString::fromUtf8(s.label)) << s.key;
    EXPECT_EQ(KeyText(5), QStringLiteral("&"));
    for (int key : {0, 1, 9, 12, 5})
        Key(key);  // ! (nothing) (nothing) A &
    EXPECT_EQ(Immediate()->text(), QStringLiteral("!A&"));
    Control(QStringLiteral("CAPS"));
    Key(12);
    EXPECT_EQ(Immediate()->text(), QStringLiteral("!A&a"));
}

TEST_F(KeyboardTest, KeypadAndEnterEvaluate) {
    Immediate()->setFocus();
    for (int key : {8, 11, 9, 3, 10})
        TenKey(key);  // 1 - 2 / 3
    EXPECT_EQ(Immediate()->text(), QStringLiteral("1-2/3"));
    Control(QStringLiteral("ENT"));
    EXPECT_EQ(Kai(), QStringLiteral("0.333333333333333"));
    EXPECT_EQ(Immediate()->text(), QStringLiteral("1-2/3")) << "no line break in the immediate box";
}

TEST_F(KeyboardTest, ControlKeysEditTheImmediateLine) {
    const struct {
        const char* keys;  // control key captions separated by blanks
        const char* text;
        int caret;
    } rows[] = {
        {"BS", "abc", 3},  // the box starts as "abcd" with the caret at the end
        {"← ← BS", "acd", 1},    {"← DEL", "abc", 3},          {"CLR", "", 0},
        {"=", "abcd=", 5},       {"SEL ← ← SEL CUT", "ab", 2}, {"SEL ← ← SEL =", "ab=", 3},
        {"← ← → =", "abc=d", 4},
    };
    for (const auto& row : rows) {
        Immediate()->setText(QStringLiteral("abcd"));
        Immediate()->setFocus();
        for (const QString& key : QString::fromUtf8(row.keys).split(' '))
            Control(key);
        EXPECT_EQ(Immediate()->text(), QString::fromUtf8(row.text)) << row.keys;
        EXPECT_EQ(Immediate()->cursorPosition(), row.caret) << row.keys;
        EXPECT_TRUE(Immediate()->hasFocus()) << row.keys;
    }
}

TEST_F(KeyboardTest, ClipboardKeys) {
    QClipboard* clipboard = QApplication::clipboard();
    Immediate()->setText(QStringLiteral("12+3"));
    Immediate()->setFocus();
    Control(QStringLiteral("COPY"));
    EXPECT_EQ(clipboard->text(), QStringLiteral("12+3")) << "nothing selected: the whole text";
    Immediate()->setSelection(0, 2);
    Control(QStringLiteral("COPY"));
    EXPECT_EQ(clipboard->text(), QStringLiteral("12"));
    Immediate()->setSelection(2, 2);
    Control(QStringLiteral("CUT"));
    EXPECT_EQ(clipboard->text(), QStringLiteral("+3"));
    EXPECT_EQ(Immediate()->text(), QStringLiteral("12"));
    Immediate()->setCursorPosition(0);
    Control(QStringLiteral("PAST"));
    EXPECT_EQ(Immediate()->text(), QStringLiteral("+312"));
}

TEST_F(KeyboardTest, ProgramTextGetsLineBreaks) {
    SetProgram(QString());
    Editor()->setFocus();
    Key(12);
    Control(QStringLiteral("ENT"));
    Key(13);
    EXPECT_EQ(Editor()->toPlainText(), QStringLiteral("a\nb"));
    Control(QStringLiteral("←"));
    Control(QStringLiteral("BS"));
    EXPECT_EQ(Editor()->toPlainText(), QStringLiteral("ab"));
    EXPECT_TRUE(Editor()->hasFocus());
}

TEST_F(KeyboardTest, EscapePutsTheKeyboardAwayAsItsHintSays) {
    EXPECT_TRUE(Find<QLabel>("KeyboardHint")->isVisible());
    EXPECT_TRUE(Find<QLabel>("KeyboardHint")->text().startsWith(QStringLiteral("ESC")));
    Control(QStringLiteral("ESC"));
    EXPECT_FALSE(Find<QWidget>("FrameKeyBoard")->isVisible());
    Click("CommandKeyBoard");
    ASSERT_TRUE(Find<QWidget>("FrameKeyBoard")->isVisible());
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(Find<QWidget>("FrameKeyBoard")->isVisible()) << "the Esc key as well";
}

// In the narrowest window: the rows of the three blocks line up, the arrows
// stand side by side in their order, and every caption fits its key.
TEST_F(KeyboardTest, RowsLineUpArrowsStandInOrderAndCaptionsFit) {
    window->resize(window->minimumSizeHint());
    QApplication::processEvents();
    auto top = [this](const QString& name) {
        QWidget* key = Find<QWidget>(name.toLatin1().constData());
        return key->mapTo(window.get(), QPoint(0, 0)).y();
    };
    auto control = [this](const char* caption) {
        const int index =
            static_cast<int>(ControlKeyCaptions().indexOf(QString::fromUtf8(caption)));
        return Find<QWidget>(QStringLiteral("Ctlkey_%1").arg(index).toLatin1().constData());
    };
    const struct {
        const char* character;
        const char* keypad;  // none on the last row
        const char* controlKey;
    } rows[] = {{"Key_0", "TenKey_0", "BS"},
                {"Key_28", "TenKey_4", "←"},
                {"Key_12", "TenKey_8", "CUT"},
                {"Key_37", "TenKey_12", "CAPS"},
                {"Key_45", nullptr, "ESC"}};
    for (const auto& row : rows) {
        const int y = top(QString::fromLatin1(row.character));
        if (row.keypad != nullptr) {
            EXPECT_EQ(top(QString::fromLatin1(row.keypad)), y) << row.keypad;
        }
        EXPECT_EQ(control(row.controlKey)->mapTo(window.get(), QPoint(0, 0)).y(), y)
            << row.controlKey;
    }
    EXPECT_LT(control("←")->x(), control("→")->x());
    EXPECT_EQ(control("←")->y(), control("→")->y());
    QSet<QPoint> places;
    for (const QString& caption : ControlKeyCaptions()) {
        places << control(caption.toUtf8().constData())->pos();
    }
    EXPECT_EQ(places.size(), ControlKeyCaptions().size()) << "every control key has its place";
    for (QPushButton* key : Find<QWidget>("FrameKeyBoard")->findChildren<QPushButton*>()) {
        EXPECT_LE(key->fontMetrics().horizontalAdvance(key->text()) + 8, key->width())
            << key->objectName().toStdString() << " " << key->text().toStdString();
    }
}

}  // namespace
}  // namespace lapdesk::testing
