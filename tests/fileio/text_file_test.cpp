#include "fileio/text_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "temp_folder.h"

namespace lapdesk {
namespace {

using testing_support::ReadBytes;
using testing_support::TempFolder;
using testing_support::WriteBytes;

const std::string kJapaneseUtf8 = "逆変換\r\nデータ\r\n";
const std::string kJapaneseCp932 = "\x8B\x74\x95\xCF\x8A\xB7\r\n\x83\x66\x81\x5B\x83\x5E\r\n";

int EntriesIn(const std::filesystem::path& folder) {
    int n = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder))
        ++n;
    return n;
}

TEST(WriteTextAtomic, WritesCp932AndReadsBackAsUtf8) {
    TempFolder folder;
    const auto file = folder / "result.Ldt";
    const WriteResult written = WriteTextAtomic(file, kJapaneseUtf8);
    ASSERT_TRUE(written.ok) << written.reason;
    EXPECT_EQ(ReadBytes(file), kJapaneseCp932);
    const TextResult text = ReadText(file);
    ASSERT_TRUE(text.ok) << text.reason;
    EXPECT_EQ(text.text, kJapaneseUtf8);
    EXPECT_EQ(EntriesIn(folder.path()), 1);  // no temporary file left behind
}

TEST(WriteTextAtomic, ReplacesAnExistingFileKeepingItsPermissions) {
    TempFolder folder;
    const auto file = folder / "old.Ldt";
    WriteBytes(file, "old contents that are longer than the new ones");
    std::filesystem::permissions(file, std::filesystem::perms::owner_read |
                                           std::filesystem::perms::owner_write |
                                           std::filesystem::perms::group_read);
    ASSERT_TRUE(WriteTextAtomic(file, "new").ok);
    EXPECT_EQ(ReadBytes(file), "new");
    struct stat st {};
    ASSERT_EQ(stat(file.c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0640u);
}

TEST(WriteTextAtomic, FailedSaveLeavesTheOldFileIntact) {
    TempFolder folder;
    const auto file = folder / "keep.Ldt";
    WriteBytes(file, kJapaneseCp932);

    const WriteResult unencodable = WriteTextAtomic(file, "price €5\r\n");
    EXPECT_FALSE(unencodable.ok);
    EXPECT_NE(unencodable.reason.find("U+20AC"), std::string::npos) << unencodable.reason;
    EXPECT_EQ(ReadBytes(file), kJapaneseCp932);
    EXPECT_EQ(EntriesIn(folder.path()), 1);

    const WriteResult notAFile = WriteTextAtomic(folder.path(), "text");
    EXPECT_FALSE(notAFile.ok);
    EXPECT_EQ(ReadBytes(file), kJapaneseCp932);
    EXPECT_EQ(EntriesIn(folder.path()), 1);

    const WriteResult noFolder = WriteTextAtomic(folder / "no-such-folder" / "out.Ldt", "text");
    EXPECT_FALSE(noFolder.ok);
    EXPECT_NE(noFolder.reason.find("no-such-folder"), std::string::npos) << noFolder.reason;
}

TEST(ReadTextLines, ReadsEitherEncodingWithAnyLineBreaks) {
    TempFolder folder;
    struct Row {
        const char* name;
        std::string bytes;
    };
    const Row rows[] = {
        {"cp932 crlf", "\x8B\x74\x95\xCF\x8A\xB7\r\n1,2\r\n"},
        {"utf8 lf", "逆変換\n1,2\n"},
        {"utf8 bom cr", "\xEF\xBB\xBF逆変換\r1,2"},
    };
    for (const Row& row : rows) {
        const auto file = folder / "in.txt";
        WriteBytes(file, row.bytes);
        const LinesResult read = ReadTextLines(file);
        ASSERT_TRUE(read.ok) << row.name << ": " << read.reason;
        EXPECT_EQ(read.lines, (std::vector<std::string>{"逆変換", "1,2"})) << row.name;
    }
}

TEST(ReadText, FailsWithAReason) {
    TempFolder folder;
    const TextResult missing = ReadText(folder / "missing.Ldt");
    EXPECT_FALSE(missing.ok);
    EXPECT_NE(missing.reason.find("missing.Ldt"), std::string::npos) << missing.reason;

    const auto broken = folder / "broken.Ldt";
    WriteBytes(broken, "1,2\r\n\x81\x20");
    const LinesResult read = ReadTextLines(broken);
    EXPECT_FALSE(read.ok);
    EXPECT_NE(read.reason.find("cp932"), std::string::npos) << read.reason;
}

}  // namespace
}  // namespace lapdesk
