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
