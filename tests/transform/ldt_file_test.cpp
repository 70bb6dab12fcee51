#include "transform/ldt_file.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <string>
#include <vector>

#include "fileio/text_codec.h"
#include "named_rows.h"
#include "status_log.h"
#include "temp_folder.h"

namespace lapdesk {
namespace {

using testing_support::ReadBytes;
using testing_support::StatusLog;
using testing_support::TempFolder;
using testing_support::WriteBytes;
using Strings = std::vector<std::string>;

Complex OneOverSPlusOne(const Complex& s) {
    return CplDiv({1, 0}, CplAdd(s, {1, 0}));
}

// A driver with N = 128 data made from 1/(s+1) (source "Math"); also used to
// build test files before any test runs, so it asserts nothing itself.
TransformDriver MadeDriver() {
    TransformDriver driver;
    driver.SetWordNumber("128");
    driver.MakeData(OneOverSPlusOne);
    return driver;
}

TEST(ResultText, HasTheFixedLayout) {
    const TransformDriver driver = MadeDriver();
    ASSERT_TRUE(driver.HasResult());
    const std::string text = WriteResultText(driver);
    const Strings lines = SplitLines(text);
    ASSERT_EQ(lines.size(), 131u);
    EXPECT_TRUE(text.ends_with("\r\n"));
    EXPECT_EQ(text.find('\n'), text.find("\r\n") + 1);
    EXPECT_EQ(lines[0], "Word Number,  Tend      ,  Ganma ");
    EXPECT_EQ(lines[1], "    128    ,  5.000E+00 ,   5.0");
    EXPECT_EQ(lines[2], "   Real Part    ,   Image Part   ,     t      ,     y");
    bool sawNegative = false;
    for (std::size_t i = 3; i < lines.size(); ++i) {
        const std::string& line = lines[i];
        ASSERT_EQ(line.size(), 16u + 1 + 16 + 1 + 12 + 1 + 12) << line;
        ASSERT_EQ(line[16], ',');
        ASSERT_EQ(line[33], ',');
        ASSERT_EQ(line[46], ',');
        sawNegative = sawNegative || line.substr(17, 3) == "  -";
    }
    EXPECT_TRUE(sawNegative);  // the mirrored imaginary parts
    EXPECT_EQ(lines[3].substr(34, 12), "   0.000E+00");
    EXPECT_EQ(lines[4].substr(34, 12), "   3.906E-02");  // t_1 = 5/128
}

TEST(TransformFile, ProgramDataCarryTheProgramList) {
    TempFolder folder;
    TransformDriver driver = MadeDriver();
    StatusLog log(driver);
    const auto file = folder / "made.Ldt";
    const Outcome written = WriteTransformFile(driver, file, "' F(p)\nF = 1 / (p + 1)");
    ASSERT_TRUE(written.ok) << written.reason;
    EXPECT_EQ(log.texts, (Strings{"", "データ書込み開始", "データ書込み成功"}));
    const std::string expected = WriteResultText(driver) +
                                 "\r\n\r\n変換関数作成プログラムリスト\r\n"
                                 "' F(p)\r\nF = 1 / (p + 1)\r\n";
    EXPECT_EQ(ReadBytes(file), Utf8ToCp932(expected).text);
}

TEST(TransformFile, FileDataHaveNoProgramList) {
    TempFolder folder;
    TransformDriver first = MadeDriver();
    ASSERT_TRUE(WriteTransformFile(first, folder / "a.Ldt", "F = 1").ok);
    TransformDriver second;
    ASSERT_TRUE(ReadLapData(second, folder / "a.Ldt", {}).ok);
    ASSERT_EQ(second.Source(), DataSource::File);
    ASSERT_TRUE(WriteTransformFile(second, folder / "b.Ldt", "F = 1").ok);
    EXPECT_EQ(SplitLines(ReadBytes(folder / "b.Ldt")).size(), 131u);
}

TEST(TransformFile, FailedSaveKeepsTheOldFile) {
    TempFolder folder;
    TransformDriver driver = MadeDriver();
    const auto file = folder / "keep.Ldt";
    WriteBytes(file, "old");
    StatusLog log(driver);
    const Outcome unencodable = WriteTransformFile(driver, file, "' costs €5");
    EXPECT_FALSE(unencodable.ok);
    EXPECT_NE(unencodable.reason.find("U+20AC"), std::string::npos) << unencodable.reason;
    EXPECT_EQ(log.texts.back(), "データ書きみ失敗");
    EXPECT_EQ(ReadBytes(file), "old");
}

TEST(TransformFile, WithoutAValidResultNothingIsWritten) {
    TempFolder folder;
    TransformDriver driver = MadeDriver();
    ASSERT_TRUE(driver.SetTend("10"));  // the result belongs to T = 5
    StatusLog log(driver);
    const Outcome refused = WriteTransformFile(driver, folder / "stale.Ldt", "F = 1");
    EXPECT_FALSE(refused.ok);
    EXPECT_FALSE(refused.reason.empty());
    EXPECT_EQ(log.texts.back(), "データ書きみ失敗");
    EXPECT_FALSE(std::filesystem::exists(folder / "stale.Ldt"));
}

TEST(ReadLapData, ReadsBackWhatWasWrittenToThePrintedPrecision) {
    TempFolder folder;
    const TransformDriver original = MadeDriver();
    TransformDriver writer = MadeDriver();
    ASSERT_TRUE(WriteTransformFile(writer, folder / "r.Ldt", "F = 1 / (p + 1)").ok);

    TransformDriver reader;
    StatusLog log(reader);
    const Outcome read = ReadLapData(reader, folder / "r.Ldt", {2, 4, 1, ","});
    ASSERT_TRUE(read.ok) << read.reason;
    EXPECT_EQ(log.texts, (Strings{"", "データ読込み開始", "データ読込み成功", "逆ラプラス変換中",
                                  "逆ＦＦＴ", "逆変換終了", ""}));
    EXPECT_EQ(reader.GetConditions().N, 128);
    EXPECT_EQ(reader.GetConditions().T, 5);
    EXPECT_EQ(reader.GetConditions().Gamma0, 5);
    EXPECT_EQ(reader.Source(), DataSource::File);
    EXPECT_TRUE(reader.HasResult());
    for (const int kind : {kSampleRe, kSampleIm}) {
        for (int k = 0; k < 128; ++k) {
            const double written = original.Store()[kind].Values[k];
            ASSERT_NEAR(reader.Store()[kind].Values[k], written, 5e-8 * std::fabs(written))
                << "kind " << kind << " k " << k;
        }
    }
    for (int k = 0; k < 102; ++k) {
        ASSERT_NEAR(reader.Store()[kResult].Values[k], original.Store()[kResult].Values[k], 1e-6);
    }
}

TEST(ReadLapData, ReadsOtherTablesThroughTheAnswers) {
    TempFolder folder;
    std::string text = "my table\n128 5 2.5\nindex re im\n";
    for (int k = 0; k < 128; ++k) {
        text += std::to_string(k) + " " + std::to_string(k + 1) + " " + std::to_string(-k) + "\n";
    }
    WriteBytes(folder / "t.txt", text);
    TransformDriver driver;
    const Outcome read = ReadLapData(driver, folder / "t.txt", {2, 4, 2, " "});
    ASSERT_TRUE(read.ok) << read.reason;
    EXPECT_EQ(driver.GetConditions().Gamma0, 2.5);
    EXPECT_EQ(driver.Store()[kSampleRe].Values[0], 1.0);
    EXPECT_EQ(driver.Store()[kSampleIm].Values[127], -127.0);

    // A first data line at or above the parameter line means "right after it".
    TransformDriver early;
    ASSERT_TRUE(ReadLapData(early, folder / "t.txt", {2, 1, 2, " "}).ok);
    EXPECT_EQ(early.Store()[kSampleRe].Values[0], 0.0);  // "index re im" reads as zeros
    EXPECT_EQ(early.Store()[kSampleRe].Values[1], 1.0);
}

TEST(ReadLapData, ShortDataLineKeepsThePreviousValues) {
    TempFolder folder;
    std::string text = "h\n    128    ,  1.000E+00 ,   1.0\nh\n";
    for (int k = 0; k < 128; ++k)
        text += k == 5 ? "9\n" : "1,2\n";
    WriteBytes(folder / "s.Ldt", text);
    TransformDriver driver;
    ASSERT_TRUE(ReadLapData(driver, folder / "s.Ldt", {}).ok);
    EXPECT_EQ(driver.Store()[kSampleRe].Values[5], 9.0);
    EXPECT_EQ(driver.Store()[kSampleIm].Values[5], 2.0);
}

struct FailureRow {
    const char* name;
    std::string file;  // kMissing and kFolder stand for no file and a folder
    ImportAnswers answers;
    std::string reasonPart;
};

const std::string kMissing = "<missing>";
const std::string kFolder = "<folder>";

std::string ValidFile() {
    TransformDriver driver = MadeDriver();
    return Utf8ToCp932(WriteResultText(driver)).text;
}

std::string WithParameterLine(const std::string& parameters) {
    std::string file = ValidFile();
    const std::size_t start = file.find("\r\n") + 2;
    return file.replace(start, file.find("\r\n", start) - start, parameters);
}

std::string WithLine(std::size_t index, const std::string& line) {
    Strings lines = SplitLines(ValidFile());
    lines[index] = line;
    std::string file;
    for (const std::string& l : lines)
        file += l + "\r\n";
    return file;
}

class ReadFailures : public testing::TestWithParam<FailureRow> {};

TEST_P(ReadFailures, LeaveTheDriverAsItWas) {
    const FailureRow& row = GetParam();
    TempFolder folder;
    const auto file = folder / "f.Ldt";
    if (row.file == kFolder) {
        std::filesystem::create_directory(file);
    } else if (row.file != kMissing) {
        WriteBytes(file, row.file);
    }
    TransformDriver driver;  // N 256 data from 1/(s+1), transformed
    ASSERT_TRUE(driver.MakeData(OneOverSPlusOne).ok);
    const SampleStore before = driver.Store();
    StatusLog log(driver);

    const Outcome read = ReadLapData(driver, file, row.answers);
    EXPECT_FALSE(read.ok);
    EXPECT_NE(read.reason.find(row.reasonPart), std::string::npos) << read.reason;
    EXPECT_EQ(log.texts.back(), "データ読込み失敗");
    EXPECT_EQ(driver.GetConditions().N, 256);
    EXPECT_EQ(driver.GetConditions().T, 5);
    EXPECT_EQ(driver.GetConditions().Gamma0, 5);
    EXPECT_EQ(driver.Source(), DataSource::Program);
    EXPECT_TRUE(driver.HasResult());
    for (int kind = 0; kind < 5; ++kind) {
        EXPECT_EQ(driver.Store()[kind].Values, before[kind].Values) << kind;
        EXPECT_EQ(driver.Store()[kind].MaxValue, before[kind].MaxValue) << kind;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Files, ReadFailures,
    testing::Values(
        FailureRow{"MissingFile", kMissing, {}, "f.Ldt'：ファイルがありません"},
        FailureRow{"Folder", kFolder, {}, "フォルダなので読めません"},
        FailureRow{"NotPowerOfTwo",
                   WithParameterLine("100,5,5"),
                   {},
                   "2 行目（パラメータ行）：N は 128 から 4096 までの 2 のべき乗にしてください。"
                   "1 列目は 100 です：「100,5,5」"},
        FailureRow{"NTooSmall", WithParameterLine("64,5,5"), {}, "1 列目は 64 です"},
        FailureRow{"TZero",
                   WithParameterLine("128,0,5"),
                   {},
                   "2 行目（パラメータ行）：T と γ0 は 0 より大きい数にしてください。2 列目は "
                   "0、3 列目は 5 です：「128,0,5」"},
        FailureRow{"GammaText", WithParameterLine("128,5,abc"), {}, "3 列目は 0 です"},
        FailureRow{"TwoParameters",
                   WithParameterLine("128,5"),
                   {},
                   "2 行目（パラメータ行）：N, T, γ0 の 3 個の数が要りますが、2 個しかありません："
                   "「128,5」"},
        FailureRow{"BlankParameterLine", WithParameterLine("   "), {}, "要りますが、空行です"},
        FailureRow{
            "HeaderAsParameters", ValidFile(), {1, 4, 1, ","}, "1 行目（パラメータ行）：N は"},
        FailureRow{"LongLineCut",
                   WithParameterLine("1" + std::string(50, '0') + ",5,5"),
                   {},
                   "：「1" + std::string(39, '0') + "…」"},
        FailureRow{"ShortFile",
                   ValidFile().substr(0, ValidFile().size() / 2),
                   {},
                   "行しかありません：4 行目から N = 128 行のデータを読むには 131 行要ります"},
        FailureRow{"NoParameterLine",
                   ValidFile(),
                   {200, 4, 1, ","},
                   "ファイルは 131 行しかなく、パラメータ行（200 行目）がありません"},
        FailureRow{"LineZero",
                   ValidFile(),
                   {0, 4, 1, ","},
                   "行と列の番号は 1 から数えます（パラメータ行 0、データ開始行 4、開始列 1"},
        FailureRow{"ColumnFour", ValidFile(), {2, 4, 4, ","}, "開始列 4 は読めません"},
        FailureRow{"BlankDataLine",
                   WithLine(9, "   "),
                   {},
                   "10 行目（データ）：数がありません（空行です）"},
        FailureRow{"HugeSample",
                   WithLine(9, "0,1e400"),
                   {},
                   "10 行目（データ）：2 列目の数が大きすぎて読めません：「0,1e400」"},
        FailureRow{"BadCp932",
                   ValidFile() + "\x81\x20\r\n",
                   {},
                   "132 行目に cp932 でも UTF-8 でもない文字があります"},
        FailureRow{"MarkedButNotUtf8",
                   "\xEF\xBB\xBF" + ValidFile() + "\x83\x66\r\n",
                   {},
                   "UTF-8 の印（BOM）で始まるのに、132 行目が UTF-8 として読めません"},
        FailureRow{"MixedCodes",
                   ValidFile() + "あ\r\n\x83\x66\r\n",
                   {},
                   "132 行目は UTF-8 ですが、ほかの行は cp932 なので読めません"},
        FailureRow{"EmptyFile", "", {}, "ファイルは空で、パラメータ行（2 行目）がありません"},
        FailureRow{"OneEmptyLine",
                   "\r\n",
                   {},
                   "ファイルは 1 行しかなく、パラメータ行（2 行目）がありません"}),
    RowName());

}  // namespace
}  // namespace lapdesk
