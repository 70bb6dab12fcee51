// The window's files: saving with the overwrite question, reading through
// the wizard and its failures, and the calculator's program files.
#include <QCheckBox>
#include <QCoreApplication>
#include <QPlainTextEdit>
#include <QTranslator>
#include <filesystem>

#include "calculator/qt_translations.h"
#include "form_fixture.h"

namespace lapdesk::testing {
namespace {

using testing_support::ReadBytes;
using testing_support::WriteBytes;

using FilesTest = FormTest;

const QString kFirstOrder = QStringLiteral("Return 1/(p+1)\nEnd");

TEST_F(FilesTest, NoNameSavesNothingAndAnExistingFileIsReplacedOnlyAfterOk) {
    RunProgram(kFirstOrder);
    script->files.clear();
    Click("ButtonResultWrite");
    EXPECT_EQ(statuses.back(), QStringLiteral("データ書きみ失敗"));
    EXPECT_TRUE(script->questions.isEmpty());

    WriteBytes(folder / "old.Ldt", "keep me");
    const QString path = PathOf("old.Ldt");
    const struct {
        QMessageBox::StandardButton answer;
        const char* status;
        bool replaced;
    } rows[] = {
        {QMessageBox::Cancel, "データ書きみ失敗", false},
        {QMessageBox::Ok, "データ書込み成功", true},
    };
    for (const auto& row : rows) {
        script->files = {path};
        script->answers = {row.answer};
        script->questions.clear();
        Click("Command3");  // "File Out" of the result frame
        EXPECT_EQ(script->questions,
                  QStringList{QStringLiteral(
                      "ファイルは既に有ります: 同名のファイルが有ります上書きしますか")});
        EXPECT_EQ(statuses.back(), QString::fromUtf8(row.status));
        EXPECT_EQ(ReadBytes(folder / "old.Ldt") != "keep me", row.replaced);
    }
}

TEST_F(FilesTest, NoFileNameOrACancelledWizardReadsNothing) {
    RunProgram(kFirstOrder);
    const std::vector<double> before(form->driver().Store()[kResult].Values);
    script->files.clear();
    Click("ButtonDataRead");
    EXPECT_EQ(statuses.back(), QStringLiteral("データ読込み失敗"));
    EXPECT_EQ(wisardShowings, 0);

    WriteBytes(folder / "other.Ldt", "Word Number\r\n 128, 5, 5\r\n");
    script->files = {PathOf("other.Ldt")};
    AnswerWisard(false);
    Action("MenueReadLapData")->trigger();
    EXPECT_EQ(wisardShowings, 1);
    EXPECT_EQ(form->wisard().labels().FileNameLb, PathOf("other.Ldt"));
    EXPECT_EQ(form->wisard().labels().MaxColumnLb, 3) << "only columns the reader can read";
    EXPECT_EQ(statuses.back(), QStringLiteral("データ読込み失敗"));
    EXPECT_EQ(Text("DataSourceLb"), QStringLiteral("Math")) << "nothing changed";
    EXPECT_EQ(Text("WordNumberLb"), QStringLiteral("256"));
    EXPECT_EQ(form->driver().Store()[kResult].Values, before);
}

// The status says which line failed, in which column, and what it holds;
// a file the wizard cannot even preview says why as well.
TEST_F(FilesTest, AFailedReadSaysWhereAndWhatWasFound) {
    std::string hugeFirstSample = "Word Number\r\n128,5,5\r\nRe,Im\r\n0,1e400\r\n";
    for (int k = 1; k < 128; ++k)
        hugeFirstSample += "0,0\r\n";
    const struct {
        std::string bytes;
        bool wisardShows;
        const char* reason;
    } rows[] = {
        {"Word Number\r\n    128    ,5\r\n", true, "2 個しかありません：「    128    ,5」"},
        {hugeFirstSample, true, "4 行目（データ）：2 列目の数が大きすぎて読めません：「0,1e400」"},
        {"Word Number\r\n\x81\x20\r\n", false, "cp932"},
    };
    for (const auto& row : rows) {
        WriteBytes(folder / "bad.Ldt", row.bytes);
        script->files = {PathOf("bad.Ldt")};
        AnswerWisard(true);
        wisardShowings = 0;
        Click("ButtonDataRead");
        EXPECT_EQ(wisardShowings, row.wisardShows ? 1 : 0) << row.reason;
        EXPECT_TRUE(Text("StatusBar").startsWith(QStringLiteral("データ読込み失敗：")))
            << Text("StatusBar").toStdString();
        EXPECT_TRUE(Text("StatusBar").contains(QString::fromUtf8(row.reason)))
            << Text("StatusBar").toStdString();
        EXPECT_EQ(Find<QLabel>("StatusBar")->toolTip(), Text("StatusBar"));
        EXPECT_EQ(Text("DataSourceLb"), QStringLiteral("Non"));
    }
}

TEST_F(FilesTest, TheCalculatorsProgramIsReadAndSaved) {
    WriteBytes(folder / "ramp.Prg", "' ramp\r\nReturn 1/p^2\r\nEnd\r\n");
    script->files = {PathOf("ramp.Prg")};
    Action("MenueProgramRead")->trigger();
    auto* editor = Calculator().findChild<QPlainTextEdit*>(QStringLiteral("ProgramText"));
    EXPECT_EQ(editor->toPlainText(), QStringLiteral("' ramp\nReturn 1/p^2\nEnd"));
    EXPECT_TRUE(Calculator().isVisible());

    editor->setPlainText(kFirstOrder);
    script->files = {PathOf("saved.Prg")};
    Action("MenueProgramWrite")->trigger();
    EXPECT_EQ(ReadBytes(folder / "saved.Prg"), "Return 1/(p+1)\r\nEnd\r\n");
}

TEST_F(FilesTest, DataDialogsChooseLdtAndStartWhereTheLastFileWas) {
    const QString program = PathOf("ramp.Prg");
    WriteBytes(folder / "ramp.Prg", "Return 1/p^2\r\nEnd\r\n");
    script->files = {program};
    Action("MenueProgramRead")->trigger();
    script->files = {PathOf("ramp")};
    RunProgram(kFirstOrder);
    Click("ButtonResultWrite");
    EXPECT_EQ(script->selectedFilters.last(), QStringLiteral("Data(*.Ldt)"));
    EXPECT_EQ(script->initialPaths.last(), QString::fromStdString(folder.path().string()))
        << "the folder the calculator's program came from";
    // The suffix is added, and the calculator's program goes into the file.
    EXPECT_NE(ReadBytes(folder / "ramp.Ldt").find("\r\nReturn 1/(p+1)\r\nEnd\r\n"),
              std::string::npos);
    AnswerWisard(false);
    Click("ButtonDataRead");
    EXPECT_EQ(script->selectedFilters.last(), QStringLiteral("Data(*.Ldt)"));
    EXPECT_EQ(script->initialPaths.last(), QString::fromStdString(folder.path().string()))
        << "an open dialog starts in a folder, not on a file";
}

TEST_F(FilesTest, QtsOwnDialogTextsAreJapanese) {
    QTranslator* translator = LoadQtTranslations(*QCoreApplication::instance());
    ASSERT_NE(translator, nullptr) << "qt6-translations-l10n is installed by scripts/install-deps";
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"),
              QStringLiteral("キャンセル"));
    QCoreApplication::removeTranslator(translator);
    delete translator;
}

// The accuracy CSV is a file of its own kind: its name beside the data
// file with ".csv", the CSV filter, the suffix added, and an existing file
// replaced only after OK.
TEST_F(FilesTest, TheAccuracyCsvHasItsOwnNameAndAsksBeforeReplacing) {
    RunProgram(kFirstOrder);
    script->files = {PathOf("x.Ldt")};
    Click("ButtonResultWrite");
    script->files = {PathOf("x")};
    Action("MenueAccuracyCsv")->trigger();
    EXPECT_EQ(script->initialPaths.last(), PathOf("x.csv"));
    EXPECT_EQ(script->selectedFilters.last(), QStringLiteral("CSV(*.csv)"));
    EXPECT_EQ(script->filterLists.last(), QStringLiteral("CSV(*.csv);;All(*.*)"));
    EXPECT_EQ(ReadBytes(folder / "x.csv").substr(0, 2), "t,");
    EXPECT_NE(ReadBytes(folder / "x.Ldt").substr(0, 2), "t,") << "the data file is left alone";
    WriteBytes(folder / "x.csv", "keep me");
    script->files = {PathOf("x.csv")};
    script->answers = {QMessageBox::Cancel};
    script->questions.clear();
    Action("MenueAccuracyCsv")->trigger();
    EXPECT_EQ(script->questions,
              QStringList{QStringLiteral(
                  "ファイルは既に有ります: 同名のファイルが有ります上書きしますか")});
    EXPECT_EQ(ReadBytes(folder / "x.csv"), "keep me");
}

// The file holds the data and the calculator's present program: when that
// program did not make the data, or the result text was edited, the user is
// asked first.
TEST_F(FilesTest, ASaveAsksWhenTheFileWouldMixTwoPrograms) {
    RunProgram(kFirstOrder);
    SetProgram(QStringLiteral("Return 1/(p+2)\nEnd"));
    const struct {
        QMessageBox::StandardButton answer;
        bool written;
    } rows[] = {{QMessageBox::Cancel, false}, {QMessageBox::Ok, true}};
    for (const auto& row : rows) {
        std::filesystem::remove(folder / "mixed.Ldt");
        script->files = {PathOf("mixed.Ldt")};
        script->answers = {row.answer};
        script->questions.clear();
        Click("ButtonResultWrite");
        EXPECT_EQ(
            script->questions,
            QStringList{QStringLiteral("結果保存: プログラムがデータを作った時から変わっています。"
                                       "今のプログラムをデータと一緒に保存しますか")});
        EXPECT_EQ(std::filesystem::exists(folder / "mixed.Ldt"), row.written);
    }
    SetProgram(kFirstOrder);
    Find<QCheckBox>("Check1")->click();
    Find<QPlainTextEdit>("Text1")->appendPlainText(QStringLiteral("my note"));
    script->files = {PathOf("edited.Ldt")};
    script->answers = {QMessageBox::Cancel};
    script->questions.clear();
    Click("Command3");
    EXPECT_EQ(script->questions,
              QStringList{QStringLiteral("結果保存: 「編集」で変えた結果テキストは保存されません。"
                                         "計算したデータと結果を保存しますか")});
    EXPECT_FALSE(std::filesystem::exists(folder / "edited.Ldt"));
}

}  // namespace
}  // namespace lapdesk::testing
