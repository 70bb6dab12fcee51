// The wizard's preview and lists, without a display.
#include "importer/import_preview.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lapdesk {
namespace {

TEST(ImportPreview, NumbersEachLineWithThreeDigitsAndABar) {
    const struct {
        int line;
        const char* text;
        const char* entry;
    } rows[] = {
        {1, "Word Number,  Tend      ,  Ganma ", "001|Word Number,  Tend      ,  Ganma "},
        {42, "", "042|"},
        {200, "1,2", "200|1,2"},
        {1000, "x", "1000|x"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(PreviewEntry(row.line, row.text), row.entry) << row.line;
    }
}

std::vector<std::string> Lines(int count) {
    std::vector<std::string> lines;
    for (int n = 1; n <= count; ++n) {
        lines.push_back("line " + std::to_string(n));
    }
    return lines;
}

TEST(ImportPreview, ShowsAtMostTheFirst200Lines) {
    const struct {
        int lines;
        std::size_t shown;
    } rows[] = {{0, 0}, {3, 3}, {200, 200}, {201, 200}, {300, 200}};
    for (const auto& row : rows) {
        const std::vector<std::string> entries = PreviewEntries(Lines(row.lines));
        ASSERT_EQ(entries.size(), row.shown) << row.lines << " lines";
        if (row.shown == 0) continue;
        EXPECT_EQ(entries.front(), "001|line 1");
        EXPECT_EQ(entries.back(),
                  PreviewEntry(static_cast<int>(row.shown), "line " + std::to_string(row.shown)));
    }
}

TEST(ImportPreview, OffersTheNumbersOneToCount) {
    EXPECT_EQ(NumberChoices(5), (std::vector<std::string>{"1", "2", "3", "4", "5"}));
    EXPECT_TRUE(NumberChoices(0).empty());
    EXPECT_TRUE(NumberChoices(-3).empty());
}

TEST(ImportPreview, SelectsAKeptAnswerOnlyWhenTheListHasIt) {
    const struct {
        int answer;
        int count;
        int row;
    } rows[] = {
        {4, 200, 3},    {1, 1, 0},   {200, 200, 199},  // inside the list
        {0, 200, -1},   {-2, 5, -1},                   // not above 0
        {201, 200, -1}, {1, 0, -1},                    // past the end, or an empty list
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ChoiceRow(row.answer, row.count), row.row) << row.answer << " of " << row.count;
    }
}

}  // namespace
}  // namespace lapdesk
