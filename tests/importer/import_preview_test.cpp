// The wizard's preview and lists, the file it previews and its doubts about
// the answers, without a display.
#include "importer/import_preview.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "named_rows.h"
#include "temp_folder.h"
#include "transform/split_numbers.h"

namespace lapdesk {
namespace {

using testing_support::TempFolder;
using testing_support::WriteBytes;
using Lines = std::vector<std::string>;

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

// The doubts are only as good as the splitting: the pieces must hold the
// numbers the reader makes of the same line (a piece without one reads as 0).
TEST(ImportPreview, SplitsLinesAsTheReaderDoes) {
    const std::pair<const char*, const char*> rows[] = {
        {"    128    ,  5.000E+00 ,   5.0", ","},
        {"1   2", ""},
        {"1 2", ","},
        {"a,b,3", ","},
        {"1;;2", ";"},
        {"1,2,", ","},
        {"+.5,-3.,1e400,-1e-400", ","},
        {"   ", ","},
        {"1 , 2 ,3", ","},
    };
    for (const auto& [line, delimiter] : rows) {
        const std::vector<std::string_view> pieces = SplitPieces(line, delimiter);
        NumberRow values{};
        int count = 0;
        SplitNumbers(line, delimiter, 3, count, values);
        ASSERT_EQ(pieces.size(), static_cast<std::size_t>(count)) << line;
        for (int k = 0; k < count; ++k) {
            EXPECT_EQ(LeadingNumberIfAny(pieces[k]).value_or(0.0), values[k])
                << line << " #" << k + 1;
        }
    }
}

TEST(ImportPreview, KnowsASavedDataFileByItsFirstLine) {
    EXPECT_TRUE(IsSavedTransformFile({"Word Number,  Tend      ,  Ganma ", "x"}));
    EXPECT_TRUE(IsSavedTransformFile({"Word  Number, Tend, Ganma"})) << "spaces do not count";
    EXPECT_FALSE(IsSavedTransformFile({"Word Number", "    128    ,5"}));
    EXPECT_FALSE(IsSavedTransformFile({"", "Word Number,  Tend      ,  Ganma "}));
    EXPECT_FALSE(IsSavedTransformFile({}));
}

struct DoubtRow {
    const char* name;
    Lines lines;
    ReadAnswers answers;
    std::vector<DoubtKind> kinds;
    std::vector<std::string> textParts = {};  // each found in one of the texts
};

const Lines kSaved = {"Word Number,  Tend      ,  Ganma ",
                      "    128    ,  5.000E+00 ,   5.0",
                      "   Real Part    ,   Image Part   ,     t      ,     y",
                      "   1.0000000E+00,   0.0000000E+00,   0.000E+00,   1.000E+00",
                      "   9.9000000E-01,  -3.0000000E-02,   3.906E-02,   9.600E-01",
                      "   9.6000000E-01,  -6.0000000E-02,   7.813E-02,   9.200E-01"};
const Lines kIndexed = {"k re im", "128 5 5", "0 0.5 0.1", "1 0.4 0.2", "2 0.3 0.3"};

class Doubts : public testing::TestWithParam<DoubtRow> {};

TEST_P(Doubts, AreFoundWhereTheAnswersDoNotFitTheFile) {
    const DoubtRow& row = GetParam();
    std::vector<DoubtKind> kinds;
    std::string texts;
    for (const Doubt& doubt : FindDoubts(row.lines, row.answers)) {
        kinds.push_back(doubt.kind);
        texts += doubt.text + "\n";
    }
    EXPECT_EQ(kinds, row.kinds) << texts;
    for (const std::string& part : row.textParts) {
        EXPECT_NE(texts.find(part), std::string::npos) << "no \"" << part << "\" in\n" << texts;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Answers, Doubts,
    testing::Values(
        DoubtRow{"SavedFileWithItsAnswers", kSaved, {2, 4, 1, ","}, {}},
        DoubtRow{"IndexSkipped", kIndexed, {2, 3, 2, ""}, {}},  // "" is a space
        DoubtRow{"HeaderAsParameters",
                 kSaved,
                 {1, 4, 1, ","},
                 {DoubtKind::NoParameters},
                 {"パラメータ行（1 行目）には、区切り文字「,」で分けると数がありません",
                  "「Word Number,  Tend      ,  Ganma 」"}},
        DoubtRow{"DataLineNotBelowTheParameters",  // read from line 3, as the reader does
                 kSaved,
                 {2, 1, 1, ","},
                 {DoubtKind::TooFewNumbers},
                 {"データ開始行（3 行目）は、区切り文字「,」で分けると 1 列目から 2 個の数"}},
        DoubtRow{"WrongDelimiter",
                 kIndexed,
                 {2, 3, 2, ","},
                 {DoubtKind::TooFewNumbers},
                 {"2 列目から", "区切り文字「スペース」なら読めます"}},
        DoubtRow{"NoPairFromTheLastColumn", kSaved, {2, 4, 4, ","}, {DoubtKind::TooFewNumbers}},
        DoubtRow{"IndexColumn",
                 kIndexed,
                 {2, 3, 1, " "},
                 {DoubtKind::IndexColumn},
                 {"開始列（1 列目）はデータ開始行（3 行目）から 0, 1, 2, … と", "次の 2 列目"}},
        DoubtRow{"TooShortToTell", {"128,5,5", "0,7,0", "1,6,0"}, {1, 2, 1, ","}, {}},
        DoubtRow{"StepsOfTwo", {"128,5,5", "0,7,0", "2,6,0", "4,5,0"}, {1, 2, 1, ","}, {}},
        DoubtRow{
            "RunBroken", {"128,5,5", "1,7,0", "2,6,0", "3,5,0", "3.5,1,0"}, {1, 2, 1, ","}, {}},
        DoubtRow{"ParametersAndData",
                 {"N T G", "0 1"},
                 {1, 2, 1, ","},
                 {DoubtKind::NoParameters, DoubtKind::TooFewNumbers}},
        DoubtRow{"LinesTheFileLacks", {"a", "1,2"}, {2, 4, 1, ","}, {}}),
    RowName());

// The wizard's own reading of the file it previews.
TEST(ImportPreview, ReadsTheFileOrSaysWhyNotInJapanese) {
    TempFolder folder;
    std::filesystem::create_directory(folder / "folder");
    WriteBytes(folder / "cp932.txt", "\x83\x66\x81\x5b\x83\x5e\r\n1,2\r\n");  // "データ"
    WriteBytes(folder / "broken.txt", "1,2\r\n3,4\r\n\x81\x20\r\n");
    WriteBytes(folder / "mixed.txt", "1,2\r\nあ\r\n\x83\x66\r\n");  // UTF-8, then cp932
    WriteBytes(folder / "marked.txt",
               "\xEF\xBB\xBF"
               "1,2\r\n\x83\x66\r\n");
    const std::pair<const char*, const char*> failures[] = {
        {"missing.txt", "missing.txt'：ファイルがありません"},
        {"folder", "フォルダなので読めません"},
        {"broken.txt", "3 行目に cp932 でも UTF-8 でもない文字があります"},
        {"mixed.txt", "2 行目は UTF-8 ですが、ほかの行は cp932 なので読めません"},
        {"marked.txt", "UTF-8 の印（BOM）で始まるのに、2 行目が UTF-8 として読めません"},
    };
    for (const auto& [name, reason] : failures) {
        const PreviewFile read = ReadPreviewFile(folder / name);
        EXPECT_FALSE(read.ok) << name;
        EXPECT_NE(read.reason.find(reason), std::string::npos) << read.reason;
    }
    EXPECT_EQ(ReadPreviewFile(folder / "cp932.txt").lines, (Lines{"データ", "1,2"}));
}

}  // namespace
}  // namespace lapdesk
