// The calculator's rules that need no window: menu words, key layers,
// history and zoom, the meter's ticks, the highlighter.
#include <gtest/gtest.h>

#include "calculator/immediate_rules.h"
#include "calculator/keyboard_layers.h"
#include "calculator/menu_words.h"
#include "calculator/program_files.h"
#include "calculator/program_highlighter.h"
#include "calculator/progress_meter.h"
#include "window_fixture.h"

namespace lapdesk::testing {
namespace {

// The plain cases of each menu are checked through the menus themselves.
TEST(MenuWords, CaptionsCutAsEachMenuCutsThem) {
    const struct {
        const char* rule;
        WordInsertion (*cut)(const QString&);
        const char* caption;
        const char* text;
        int back;
    } rows[] = {
        {"const comma before colon", &ConstantWord, " a：b,c ", "a：b", 0},
        {"const neither", &ConstantWord, "  If  Then ", "If  Then", 0},
        {"const comma keeps blank", &ConstantWord, "ExitFor , Exit For", "ExitFor ", 0},
        {"dm constant keeps its blank", &DmConstantWord, " DT:間隔", " DT", 0},
        {"dm constant no colon", &DmConstantWord, "DT", "DT", 0},
        {"function", &FunctionWord, " Atan() , Atn()", "Atan()", 1},
        {"function without bracket", &FunctionWord, " Sin ", "Sin", 0},
        {"channel colon first", &ChannelWord, "Ch:a(1)", "Ch", 0},
        {"channel plain", &ChannelWord, "  Ch3 ", "Ch3 ", 0},
    };
    for (const auto& row : rows) {
        const WordInsertion word = row.cut(QString::fromUtf8(row.caption));
        EXPECT_EQ(word.text, QString::fromUtf8(row.text)) << row.rule;
        EXPECT_EQ(word.back, row.back) << row.rule;
    }
}

TEST(MenuWords, TrimOnlyBlanks) {
    EXPECT_EQ(TrimBlanks(QStringLiteral("\t a　 ")), QStringLiteral("\t a　"));
    EXPECT_EQ(TrimLeftBlanks(QStringLiteral("  a  ")), QStringLiteral("a  "));
}

TEST(KeyLayers, InsertTextAndControlKeys) {
    EXPECT_EQ(KeyInsertText(QStringLiteral("space")), QStringLiteral("space"));
    EXPECT_EQ(ParseControlKey(QStringLiteral("past")), ControlKey::Paste);
    EXPECT_EQ(ParseControlKey(QStringLiteral("PASTE")), ControlKey::None);
    for (const QString& caption : ControlKeyCaptions()) {
        EXPECT_NE(ParseControlKey(caption), ControlKey::None) << caption.toStdString();
    }
}

TEST(ImmediateRules, HistoryEntriesAndRecall) {
    EXPECT_EQ(RecallFromHistory(QStringLiteral("Sin(x=1) = Error")), QStringLiteral("Sin(x=1)"));
    EXPECT_EQ(RecallFromHistory(QStringLiteral(" = Error")), QString());
    EXPECT_EQ(RecallFromHistory(QStringLiteral(" text ")), QStringLiteral("text"));
}

TEST(ImmediateRules, ZoomStopsAtNine) {
    EXPECT_EQ(ZoomedPointSize(12, false), 13);
    EXPECT_EQ(ZoomedPointSize(12, true), 11);
    EXPECT_EQ(ZoomedPointSize(10, true), 9);
    EXPECT_EQ(ZoomedPointSize(9, true), 9);
    EXPECT_EQ(ZoomedPointSize(7, true), 7);
}

TEST(ProgressMeter, TicksAcrossTheScale) {
    const std::vector<double> ticks = MeterTicks(100);
    ASSERT_EQ(ticks.size(), 21u);
    for (std::size_t i = 0; i < ticks.size(); ++i)
        EXPECT_DOUBLE_EQ(ticks[i], 5.0 * i);
    EXPECT_EQ(MeterTicks(64).size(), 21u);
    EXPECT_DOUBLE_EQ(MeterTicks(64).back(), 64.0);
    EXPECT_TRUE(MeterTicks(0).empty());
    EXPECT_TRUE(MeterTicks(-3).empty());
}

TEST(ProgramFiles, FilterAndLineBreaks) {
    EXPECT_EQ(DialogFilter(QString::fromLatin1(kFileFilter)),
              QStringLiteral("Program(*.Prg);;Data(*.Ldt);;Text(*.Txt);;All(*.*)"));
}

TEST(Highlighter, KindsOfWords) {
    const QString line = QStringLiteral("For i = 1 To Sin(π) Step 2 ' Sin For");
    const struct {
        const char* word;
        const char* kind;
    } rows[] = {{"For", "keyword"},  {"To", "keyword"},    {"Sin", "function"}, {"π", "constant"},
                {"Step", "keyword"}, {"' Sin", "comment"}, {"i ", ""},          {"1", ""}};
    for (const auto& row : rows) {
        const int at = static_cast<int>(line.indexOf(QString::fromUtf8(row.word)));
        ASSERT_GE(at, 0) << row.word;
        EXPECT_EQ(ProgramHighlighter::KindAt(line, at), QString::fromUtf8(row.kind)) << row.word;
    }
    const QString more = QStringLiteral("If a.And.b Then x = Random + Random(1) : End If");
    EXPECT_EQ(ProgramHighlighter::KindAt(more, 4), QStringLiteral("operator"));
    EXPECT_EQ(ProgramHighlighter::KindAt(more, static_cast<int>(more.indexOf("Random "))),
              QStringLiteral("constant"));
    EXPECT_EQ(ProgramHighlighter::KindAt(more, static_cast<int>(more.indexOf("Random("))),
              QStringLiteral("function"));
    EXPECT_EQ(ProgramHighlighter::KindAt(more, static_cast<int>(more.indexOf("End If") + 4)),
              QStringLiteral("keyword"));
    EXPECT_EQ(ProgramHighlighter::KindAt(QStringLiteral("Sine = 1"), 0), QString())
        << "whole words";
}

}  // namespace
}  // namespace lapdesk::testing
