// Program files through the window's menus, and the sample menus.
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "calculator/sample_programs.h"
#include "window_fixture.h"

namespace lapdesk::testing {
namespace {

class FilesTest : public WindowTest {
  protected:
    QByteArray Bytes(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    QTemporaryDir folder;
};

TEST_F(FilesTest, SaveAndReadBack) {
    const QString path = folder.filePath(QStringLiteral("和.Prg"));
    SetProgram(QStringLiteral("' 和を求める\ns = 1 + 2\nReturn s\nEnd"));
    script->files = {path};
    Action("MenueWriteProgram")->trigger();
    EXPECT_EQ(script->dialogTitles, QStringList{QStringLiteral("プログラムファイルを保存")});
    EXPECT_TRUE(script->questions.isEmpty()) << "a new file needs no question";
    EXPECT_EQ(window->ProgramFileName(), path);
    EXPECT_EQ(window->FileErrorText(), QString());

    Editor()->setPlainText(QString());
    script->files = {path};
    Action("MenueReadProgram")->trigger();
    EXPECT_EQ(script->dialogTitles.last(), QStringLiteral("プログラムファイルを開く"));
    EXPECT_EQ(Editor()->toPlainText(), QStringLiteral("' 和を求める\ns = 1 + 2\nReturn s\nEnd"));
    Click("ButtonPrgRun");
    EXPECT_EQ(Kai(), QStringLiteral("Result=3")) << "the text read is the program run";
}

TEST_F(FilesTest, OverwriteQuestion) {
    const QString path = folder.filePath(QStringLiteral("b.Prg"));
    SetProgram(QStringLiteral("Return 1\nEnd"));
    window->WriteTextFile(path, Editor());
    const QByteArray first = Bytes(path);
    Editor()->setPlainText(QStringLiteral("Return 2\nEnd"));

    script->files = {path};
    script->answers = {QMessageBox::Cancel};
    Action("MenueWriteProgram")->trigger();
    EXPECT_EQ(script->questions,
              QStringList{QStringLiteral("同名のファイルが有ります上書きしますか")});
    EXPECT_EQ(Bytes(path), first) << "Cancel writes nothing";
    EXPECT_EQ(window->FileErrorText(), QStringLiteral("ファイルは既に有ります"));

    script->files = {path};
    script->answers = {QMessageBox::Ok};
    Action("MenueWriteProgram")->trigger();
    EXPECT_EQ(Bytes(path), QByteArray("Return 2\r\nEnd\r\n"));

    Editor()->setPlainText(QStringLiteral("Return 3\nEnd"));
    Action("MenueWriteOverProgram")->trigger();
    EXPECT_EQ(Bytes(path), QByteArray("Return 3\r\nEnd\r\n")) << "no dialog, no question";
    EXPECT_EQ(script->questions.size(), 2);
}

TEST_F(FilesTest, CancelledDialogOrMissingFileLeavesTheText) {
    SetProgram(QStringLiteral("End"));
    Action("MenueReadProgram")->trigger();
    EXPECT_EQ(Editor()->toPlainText(), QStringLiteral("End"));
    EXPECT_EQ(window->ProgramFileName(), QString());
    window->ReadTextFile(folder.filePath(QStringLiteral("none.Prg")), Editor());
    EXPECT_EQ(Editor()->toPlainText(), QStringLiteral("End"));
    EXPECT_NE(window->FileErrorText(), QString());
    QString name = QStringLiteral("x.Prg");
    EXPECT_FALSE(window->SetFileNameCAL(name, 5)) << "an unknown mode fails at once";
    EXPECT_EQ(name, QStringLiteral("x.Prg"));
}

TEST_F(FilesTest, DialogsStartInTheRightFolderAndSavesGetTheSuffix) {
    SetProgram(QStringLiteral("End"));
    Action("MenueReadProgram")->trigger();
    EXPECT_EQ(script->initialPaths.last(), QCoreApplication::applicationDirPath())
        << "at first the program's own folder";
    const QString path = folder.filePath(QStringLiteral("c.Prg"));
    script->files = {folder.filePath(QStringLiteral("c"))};
    Action("MenueWriteProgram")->trigger();
    EXPECT_EQ(window->ProgramFileName(), path) << "a saved program without suffix gets .Prg";
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("c"))));
    script->files = {path};
    script->answers = {QMessageBox::Ok};
    Action("MenueWriteProgram")->trigger();
    EXPECT_EQ(script->initialPaths.last(), path) << "a save dialog has the name preset";
    Action("MenueReadProgram")->trigger();
    EXPECT_EQ(script->initialPaths.last(), folder.path())
        << "an open dialog starts in the current file's folder, its list not narrowed to it";
    QString bare = QStringLiteral("d.Prg");
    EXPECT_FALSE(window->SetFileNameCAL(bare, 4));
    EXPECT_EQ(script->initialPaths.last(), folder.filePath(QStringLiteral("d.Prg")))
        << "a bare name goes to the last folder used";
    EXPECT_EQ(script->selectedFilters.last(), QStringLiteral("Program(*.Prg)"));
}

TEST_F(FilesTest, SamplesSwitchToProgramMode) {
    Action("MenueSample_1")->trigger();
    EXPECT_TRUE(Find<QWidget>("ProgramFrame")->isVisible());
    EXPECT_EQ(Editor()->toPlainText(), QString::fromUtf8(GeneralSamples()[1].text));
    window->MenueTesmorSample_Click(99);
    EXPECT_EQ(Editor()->toPlainText(), QString::fromUtf8(TransformSamples()[0].text))
        << "past the end: the first sample";
    Editor()->undo();
    EXPECT_EQ(Editor()->toPlainText(), QString::fromUtf8(GeneralSamples()[1].text));
}

// The title names the file and marks a changed text; a sample belongs to no
// file, so saving it asks for a name instead of replacing the user's program.
TEST_F(FilesTest, ASampleLoadsUntitledAndTheTitleMarksChanges) {
    const QString path = folder.filePath(QStringLiteral("mine.Prg"));
    SetProgram(QStringLiteral("Return 1\nEnd"));
    script->files = {path};
    Action("MenueWriteProgram")->trigger();
    EXPECT_EQ(window->windowTitle(), QStringLiteral("複素数計算機 - mine.Prg[*]"));
    EXPECT_FALSE(window->isWindowModified());
    Editor()->appendPlainText(QStringLiteral("' edited"));
    EXPECT_TRUE(window->isWindowModified());
    script->answers = {QMessageBox::Save};
    window->MenueSample_Click(1);
    EXPECT_EQ(Bytes(path), QByteArray("Return 1\r\nEnd\r\n' edited\r\n")) << "saved first";
    EXPECT_EQ(window->windowTitle(), QStringLiteral("複素数計算機 - 無題[*]"));
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_TRUE(window->ProgramFileName().isEmpty());
    script->files = {};
    Action("MenueWriteOverProgram")->trigger();
    EXPECT_EQ(script->dialogTitles.last(), QStringLiteral("プログラムファイルを保存"))
        << "an untitled text asks for a name";
    EXPECT_EQ(Bytes(path), QByteArray("Return 1\r\nEnd\r\n' edited\r\n"));
}

TEST_F(FilesTest, ChangesAreNotDroppedUnasked) {
    SetProgram(QStringLiteral("Return 2\nEnd"));
    const struct {
        QMessageBox::StandardButton answer;
        bool replaced;
    } rows[] = {{QMessageBox::Cancel, false}, {QMessageBox::Discard, true}};
    for (const auto& row : rows) {
        Editor()->setPlainText(QStringLiteral("Return 2"));
        Editor()->appendPlainText(QStringLiteral("End"));  // as typed: a change
        script->answers = {row.answer};
        script->questions.clear();
        window->MenueTesmorSample_Click(0);
        EXPECT_EQ(script->questions,
                  QStringList{QStringLiteral("プログラムは変更されています。保存しますか")});
        EXPECT_EQ(Editor()->toPlainText() != QStringLiteral("Return 2\nEnd"), row.replaced);
    }
    script->questions.clear();
    window->MenueTesmorSample_Click(0);
    EXPECT_TRUE(script->questions.isEmpty()) << "an unchanged sample goes without a question";
}

}  // namespace
}  // namespace lapdesk::testing
