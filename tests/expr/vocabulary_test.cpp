// The order rules of the vocabulary tables, the reserved-word check and
// statement classification.
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "expr/keywords.h"
#include "expr/vocabulary.h"
#include "values/complex.h"

namespace lapdesk {
namespace {

// Synonyms are replaced in table order, so a synonym that contains another
// must come first ("<=" before "<" and "=", or a<=b would become a.LT.=b).
TEST(VocabularyTables, NoSynonymContainsAnEarlierOne) {
    const std::vector<OperatorSynonym>& synonyms = GetVocabulary().operatorSynonyms;
    ASSERT_FALSE(synonyms.empty());
    for (std::size_t i = 0; i < synonyms.size(); ++i) {
        for (std::size_t j = i + 1; j < synonyms.size(); ++j) {
            EXPECT_EQ(synonyms[j].synonym.find(synonyms[i].synonym), std::string::npos)
                << '"' << synonyms[j].synonym << "\" comes after \"" << synonyms[i].synonym << '"';
        }
    }
}

// Classification takes the first keyword in table order, so a longer
// keyword must come before every keyword that begins it ("End If" before
// "End", "Case Else" before "Case").
TEST(VocabularyTables, LongerKeywordsComeBeforeTheirPrefixes) {
    const std::vector<StatementKeyword>& keywords = GetVocabulary().keywords;
    ASSERT_FALSE(keywords.empty());
    for (std::size_t i = 0; i < keywords.size(); ++i) {
        for (std::size_t j = i + 1; j < keywords.size(); ++j) {
            EXPECT_FALSE(keywords[j].word.starts_with(keywords[i].word))
                << keywords[j].word << " comes after its prefix " << keywords[i].word;
        }
    }
}

TEST(ReservedWords, VocabularyWordsAreReservedButNotNamesStartingWithDigits) {
    const struct {
        const char* name;
        bool reserved;
    } rows[] = {{"for", true},    {"End If", true},  {"Case Else", true}, {"pai", true},
                {"Random", true}, {"Sin(", true},    {"INVMAT(", true},   {".EQ.", true},
                {"<=", true},     {"2Pai", false},   {"0.5π", false},     {"1j", false},
                {"x", false},     {"Ending", false}, {"", false}};
    for (const auto& row : rows) {
        EXPECT_EQ(IsReservedWord(row.name), row.reserved) << '"' << row.name << '"';
    }
}

TEST(ClassifyStatement, FirstKeywordInTableOrderAsAWholeWord) {
    const struct {
        const char* statement;
        StatementKind code;
        const char* rest;
    } rows[] = {{"End If", kw::EndIf, ""},
                {"End", kw::End, ""},
                {"EndFunction", kw::End, ""},
                {"ExitFor", kw::ExitFor, ""},
                {"CaseElse", kw::CaseElse, ""},
                {"Case 1, 3", kw::Case, "1, 3"},
                {"Else If x>1 Then", kw::ElseIf, "x>1 Then"},
                {"Else", kw::Else, ""},
                {"  for i=1 to 3", kw::For, "i=1 to 3"},
                {"Return   x+1", kw::Return, "x+1"},
                {"Format = 1", kw::NoKeyword, "Format = 1"},
                {"Do_it = 4", kw::NoKeyword, "Do_it = 4"},
                {"", kw::NoKeyword, ""}};
    for (const auto& row : rows) {
        std::string_view rest = "(unset)";
        EXPECT_EQ(ClassifyStatement(row.statement, rest), row.code) << '"' << row.statement << '"';
        EXPECT_EQ(rest, row.rest) << '"' << row.statement << '"';
    }
}

}  // namespace
}  // namespace lapdesk
