#include "importer/import_preview.h"

#include <algorithm>
#include <cstdio>

namespace lapdesk {

std::string PreviewEntry(int lineNumber, std::string_view text) {
    char number[16];
    std::snprintf(number, sizeof number, "%03d|", lineNumber);
    std::string entry(number);
    entry.append(text);
    return entry;
}

std::vector<std::string> PreviewEntries(const std::vector<std::string>& lines) {
    const std::size_t shown = std::min(lines.size(), static_cast<std::size_t>(kPreviewLineLimit));
    std::vector<std::string> entries;
    entries.reserve(shown);
    for (std::size_t i = 0; i < shown; ++i) {
        entries.push_back(PreviewEntry(static_cast<int>(i) + 1, lines[i]));
    }
    return entries;
}

std::vector<std::string> NumberChoices(int count) {
    std::vector<std::string> choices;
    for (int n = 1; n <= count; ++n) {
        choices.push_back(std::to_string(n));
    }
    return choices;
}

int ChoiceRow(int answer, int count) {
    return answer > 0 && answer <= count ? answer - 1 : -1;
}

namespace {
constexpr std::string_view kSpaceWord = "スペース";
}

std::string ShownDelimiter(std::string_view delimiter) {
    return std::string(delimiter == " " ? kSpaceWord : delimiter);
}

std::string TypedDelimiter(std::string_view shown) {
    return std::string(shown == kSpaceWord ? std::string_view(" ") : shown);
}

}  // namespace lapdesk
