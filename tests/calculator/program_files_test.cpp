// Program files on disk: cp932 with CR LF, one break after the last line,
// and reading back to the same text.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "calculator/program_files.h"

namespace lapdesk {
namespace {

class ProgramFilesTest : public ::testing::Test {
  protected:
    QString Path(const char* name) { return folder.filePath(QString::fromLatin1(name)); }
    QByteArray Bytes(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    QTemporaryDir folder;
};

TEST_F(ProgramFilesTest, WritesThenReadsBackTheSameText) {
    const struct {
        const char* name;
        const char* text;  // program text, CR LF between lines
        QByteArray bytes;  // on disk
    } rows[] = {
        {"plain", "Return 1\r\nEnd", QByteArray("Return 1\r\nEnd\r\n")},
        {"japanese", "' 変数\r\nEnd", QByteArray("' \x95\xcf\x90\x94\r\nEnd\r\n")},
        {"empty", "", QByteArray("\r\n")},
        {"blank lines", "a = 1\r\n\r\nEnd", QByteArray("a = 1\r\n\r\nEnd\r\n")},
        {"trailing break", "End\r\n", QByteArray("End\r\n\r\n")},
    };
    for (const auto& row : rows) {
        const QString path = Path(row.name);
        EXPECT_EQ(WriteProgramFile(path, QString::fromUtf8(row.text)), QString()) << row.name;
        EXPECT_EQ(Bytes(path), row.bytes) << row.name;
        const ProgramFileRead read = ReadProgramFile(path);
        ASSERT_TRUE(read.ok) << row.name;
        EXPECT_EQ(read.text, QString::fromUtf8(row.text)) << row.name;
    }
}

TEST_F(ProgramFilesTest, ReadsLfUtf8AndEmptyFiles) {
    const struct {
        const char* name;
        QByteArray bytes;
        const char* text;
    } rows[] = {{"lf", QByteArray("' \xe5\xa4\x89\xe6\x95\xb0\nEnd\n"), "' 変数\r\nEnd"},
                {"bom", QByteArray("\xef\xbb\xbfReturn 2\r\nEnd\r\n"), "Return 2\r\nEnd"},
                {"empty", QByteArray(), ""}};
    for (const auto& row : rows) {
        QFile file(Path(row.name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(row.bytes);
        file.close();
        EXPECT_EQ(ReadProgramFile(Path(row.name)).text, QString::fromUtf8(row.text)) << row.name;
    }
}

TEST_F(ProgramFilesTest, FailuresComeBackAsReasons) {
    const ProgramFileRead missing = ReadProgramFile(Path("none"));
    EXPECT_FALSE(missing.ok);
    EXPECT_FALSE(missing.reason.isEmpty());
    EXPECT_FALSE(WriteProgramFile(Path("no/such/folder/x.Prg"), QStringLiteral("End")).isEmpty());
    EXPECT_FALSE(WriteProgramFile(Path("emoji"), QStringLiteral("' 😀")).isEmpty())
        << "cp932 cannot hold it";
    EXPECT_FALSE(QFile::exists(Path("emoji"))) << "nothing written";
}

}  // namespace
}  // namespace lapdesk
