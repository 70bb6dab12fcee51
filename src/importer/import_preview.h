// The parts of the import wizard that need no window: the numbered preview of
// a file's first lines, the number lists it offers, and which entry a kept
// answer selects.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace lapdesk {

// The preview shows at most this many lines.
inline constexpr int kPreviewLineLimit = 200;

// The delimiters DelimiterList offers, in this order.
inline constexpr std::array<std::string_view, 4> kDelimiters = {" ", ",", ";", "="};

// The space delimiter is shown as the word "スペース", so it can be seen;
// the word typed or chosen stands for one space again.
std::string ShownDelimiter(std::string_view delimiter);
std::string TypedDelimiter(std::string_view shown);

// "001|text": the 1-based line number with at least three digits, "|", the
// line's text.
std::string PreviewEntry(int lineNumber, std::string_view text);

// The first kPreviewLineLimit lines, numbered.
std::vector<std::string> PreviewEntries(const std::vector<std::string>& lines);

// "1", "2", ..., the count as text; none for a count below 1.
std::vector<std::string> NumberChoices(int count);

// The 0-based row that a kept 1-based answer selects in a list of count
// entries, or -1 when the answer is not above 0 or past the list's end.
int ChoiceRow(int answer, int count);

}  // namespace lapdesk
