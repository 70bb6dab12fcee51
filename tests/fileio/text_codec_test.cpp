#include "fileio/text_codec.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lapdesk {
namespace {

TEST(Cp932, ConvertsBothWays) {
    const struct {
        std::string utf8;
        std::string cp932;
    } rows[] = {{"Word Number,  Tend\r\n", "Word Number,  Tend\r\n"},
                {"変換関数作成プログラムリスト",
                 "\x95\xCF\x8A\xB7\x8A\xD6\x90\x94\x8D\xEC\x90\xAC\x83\x76\x83\x8D"
                 "\x83\x4F\x83\x89\x83\x80\x83\x8A\x83\x58\x83\x67"},
                {"ｶﾅ", "\xB6\xC5"},
                {"Ｔ設定", "\x82\x73\x90\xDD\x92\xE8"},
                {"", ""}};
    for (const auto& row : rows) {
        const TextResult encoded = Utf8ToCp932(row.utf8);
        ASSERT_TRUE(encoded.ok) << encoded.reason;
        EXPECT_EQ(encoded.text, row.cp932) << row.utf8;
        const TextResult decoded = Cp932ToUtf8(encoded.text);
        ASSERT_TRUE(decoded.ok) << decoded.reason;
        EXPECT_EQ(decoded.text, row.utf8);
    }
}

TEST(Utf8ToCp932, FailsWithTheOffendingCodePoint) {
    for (const auto& [text, codePoint] : std::vector<std::pair<std::string, std::string>>{
             {"価格 €5", "U+20AC"}, {"ok \xF0\x9F\x98\x80", "U+1F600"}}) {
        const TextResult result = Utf8ToCp932(text);
        EXPECT_FALSE(result.ok) << text;
        EXPECT_TRUE(result.text.empty());
        EXPECT_NE(result.reason.find(codePoint), std::string::npos) << result.reason;
    }
    const TextResult malformed = Utf8ToCp932("abc\xE3\x81");
    EXPECT_FALSE(malformed.ok);
    EXPECT_NE(malformed.reason.find("UTF-8"), std::string::npos);
}

TEST(Cp932ToUtf8, InvalidBytesFailWithTheirOffset) {
    const TextResult lone = Cp932ToUtf8(std::string("ab\x81\x20", 4));
    EXPECT_FALSE(lone.ok);
    EXPECT_NE(lone.reason.find("2 バイト目"), std::string::npos) << lone.reason;
    const TextResult cut = Cp932ToUtf8("ab\x82");
    EXPECT_FALSE(cut.ok);
    EXPECT_NE(cut.reason.find("途中で終わって"), std::string::npos) << cut.reason;
}

TEST(IsValidUtf8, AcceptsWellFormedAndRejectsTheRest) {
    struct Row {
        std::string bytes;
        bool valid;
    };
    const std::vector<Row> rows = {{"plain", true},
                                   {"日本語", true},
                                   {"\xF0\x9F\x98\x80", true},
                                   {"\xC0\x80", false},          // overlong NUL
                                   {"\xED\xA0\x80", false},      // surrogate
                                   {"\xF4\x90\x80\x80", false},  // past U+10FFFF
                                   {"\xE6\x97", false},          // cut short
                                   {"\x93\xFA\x96\x7B", false},  // cp932 "日本"
                                   {"\x80", false}};
    for (const Row& row : rows)
        EXPECT_EQ(IsValidUtf8(row.bytes), row.valid) << row.bytes;
}

TEST(DecodeText, ChoosesUtf8OrCp932) {
    struct Row {
        const char* name;
        std::string bytes;
        std::string text;
    };
    const std::vector<Row> rows = {{"utf8", "逆変換", "逆変換"},
                                   {"bom dropped", "\xEF\xBB\xBF逆変換", "逆変換"},
                                   {"cp932", "\x8B\x74\x95\xCF\x8A\xB7", "逆変換"},
                                   {"ascii", "1,2,3", "1,2,3"}};
    for (const Row& row : rows) {
        const TextResult result = DecodeText(row.bytes);
        ASSERT_TRUE(result.ok) << row.name << ": " << result.reason;
        EXPECT_EQ(result.text, row.text) << row.name;
    }
    EXPECT_FALSE(DecodeText("\xEF\xBB\xBF\x8B\x74\x95\xCF").ok);
}

TEST(SplitLines, SplitsAtEveryKindOfBreak) {
    using Lines = std::vector<std::string>;
    struct Row {
        std::string text;
        Lines lines;
    };
    const std::vector<Row> rows = {{"", {}},
                                   {"a", {"a"}},
                                   {"a\r\n", {"a"}},
                                   {"a\nb\n", {"a", "b"}},
                                   {"a\rb\r", {"a", "b"}},
                                   {"a\r\n\r\nb", {"a", "", "b"}},
                                   {"\r\n", {""}},
                                   {"a\n\rb", {"a", "", "b"}},
                                   {"a\r\r\nb", {"a", "", "b"}}};
    for (const Row& row : rows)
        EXPECT_EQ(SplitLines(row.text), row.lines) << row.text;
}

}  // namespace
}  // namespace lapdesk
