#include "importer/import_preview.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "fileio/text_file.h"
#include "transform/split_numbers.h"

namespace lapdesk {

namespace {

// The text a line is quoted by: its first 40 characters (UTF-8 sequences
// kept whole) between 「」, "…" when cut.
std::string QuotedLine(std::string_view line) {
    constexpr std::size_t kShown = 40;
    std::size_t end = 0;
    for (std::size_t characters = 0; end < line.size() && characters < kShown; ++characters) {
        do {
            ++end;
        } while (end < line.size() && (static_cast<unsigned char>(line[end]) & 0xC0) == 0x80);
    }
    std::string quoted = "「";
    quoted.append(line.substr(0, end)).append(end < line.size() ? "…」" : "」");
    return quoted;
}

std::string LineName(const char* what, int line) {
    return std::string(what) + "（" + std::to_string(line) + " 行目）";
}

std::string DelimiterName(std::string_view delimiter) {
    return "区切り文字「" + ShownDelimiter(delimiter.empty() ? " " : delimiter) + "」";
}

bool HasNumberAt(const std::vector<std::string_view>& pieces, std::size_t at) {
    return at < pieces.size() && LeadingNumberIfAny(pieces[at]).has_value();
}

// The real and imaginary parts at the first column (1-based) and the next.
bool HasPairAt(std::string_view line, std::string_view delimiter, int column) {
    const std::vector<std::string_view> pieces = SplitPieces(line, delimiter);
    const auto at = static_cast<std::size_t>(column - 1);
    return HasNumberAt(pieces, at) && HasNumberAt(pieces, at + 1);
}

// An index column counts on through the first data lines; this many are
// looked at, and at least three must be there to tell.
constexpr int kIndexLinesLooked = 10;
constexpr int kIndexLinesNeeded = 3;

// The counts when the column (1-based) holds integers that grow by one from
// the first line (0-based) on, none otherwise.
std::optional<std::vector<long long>> IndexRun(const std::vector<std::string>& lines,
                                               std::size_t first, std::string_view delimiter,
                                               int column) {
    const std::size_t end =
        std::min(lines.size(), first + static_cast<std::size_t>(kIndexLinesLooked));
    if (end < first + kIndexLinesNeeded) return std::nullopt;
    std::vector<long long> counts;
    for (std::size_t i = first; i < end; ++i) {
        const std::vector<std::string_view> pieces = SplitPieces(lines[i], delimiter);
        const auto at = static_cast<std::size_t>(column - 1);
        const std::optional<double> value =
            at < pieces.size() ? LeadingNumberIfAny(pieces[at]) : std::nullopt;
        if (!value || !(std::fabs(*value) < 1e15) || *value != std::trunc(*value))
            return std::nullopt;
        const auto count = static_cast<long long>(*value);
        if (!counts.empty() && count != counts.back() + 1) return std::nullopt;
        counts.push_back(count);
    }
    return counts;
}

}  // namespace

PreviewFile ReadPreviewFile(const std::filesystem::path& path) {
    LinesResult read = ReadTextLines(path);
    return {read.ok, std::move(read.lines), std::move(read.reason)};
}

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

std::string WithoutSpaces(std::string_view text) {
    std::string kept;
    for (const char c : text) {
        if (c != ' ' && c != '\t') kept.push_back(c);
    }
    return kept;
}
}  // namespace

std::string ShownDelimiter(std::string_view delimiter) {
    return std::string(delimiter == " " ? kSpaceWord : delimiter);
}

std::string TypedDelimiter(std::string_view shown) {
    return std::string(shown == kSpaceWord ? std::string_view(" ") : shown);
}

bool IsSavedTransformFile(const std::vector<std::string>& lines) {
    return !lines.empty() && WithoutSpaces(lines.front()) == WithoutSpaces(kSavedFileHeader);
}

ReadAnswers SavedFileAnswers() {
    return {2, 4, 1, ","};
}

std::vector<std::string_view> SplitPieces(std::string_view line, std::string_view delimiter) {
    const std::string_view separator = delimiter.empty() ? std::string_view(" ") : delimiter;
    std::vector<std::string_view> pieces;
    std::size_t pos = 0;
    while (true) {
        pos = line.find_first_not_of(' ', pos);
        if (pos == std::string_view::npos) break;
        const std::size_t pieceEnd = line.find(' ', pos);
        pieces.push_back(line.substr(pos, pieceEnd - pos));
        const std::size_t next = line.find(separator, pos);
        if (next == std::string_view::npos) break;
        pos = next + separator.size();
        if (pos >= line.size()) break;
    }
    return pieces;
}

std::vector<Doubt> FindDoubts(const std::vector<std::string>& lines, const ReadAnswers& answers) {
    std::vector<Doubt> doubts;
    if (answers.paramLine < 1 || answers.dataLine < 1 || answers.firstColumn < 1) return doubts;
    const auto has = [&lines](int line) { return static_cast<std::size_t>(line) <= lines.size(); };
    const std::string& delimiter = answers.delimiter;

    if (has(answers.paramLine)) {
        const std::string& line = lines[answers.paramLine - 1];
        const std::vector<std::string_view> pieces = SplitPieces(line, delimiter);
        if (std::none_of(pieces.begin(), pieces.end(), [](std::string_view piece) {
                return LeadingNumberIfAny(piece).has_value();
            })) {
            doubts.push_back({DoubtKind::NoParameters,
                              LineName("パラメータ行", answers.paramLine) + "には、" +
                                  DelimiterName(delimiter) +
                                  "で分けると数がありません（N, T, γ0 の行ではないようです）：" +
                                  QuotedLine(line)});
        }
    }

    const int first = std::max(answers.paramLine + 1, answers.dataLine);
    if (!has(first)) return doubts;
    const std::string& line = lines[first - 1];
    const std::string column = std::to_string(answers.firstColumn) + " 列目";
    if (!HasPairAt(line, delimiter, answers.firstColumn)) {
        std::string text = LineName("データ開始行", first) + "は、" + DelimiterName(delimiter) +
                           "で分けると " + column + "から 2 個の数（実部と虚部）になりません：" +
                           QuotedLine(line);
        for (const std::string_view other : kDelimiters) {
            if (other != (delimiter.empty() ? " " : delimiter) &&
                HasPairAt(line, other, answers.firstColumn)) {
                text += "。" + DelimiterName(other) + "なら読めます";
                break;
            }
        }
        doubts.push_back({DoubtKind::TooFewNumbers, text});
        return doubts;
    }
    const std::optional<std::vector<long long>> counts =
        IndexRun(lines, static_cast<std::size_t>(first - 1), delimiter, answers.firstColumn);
    if (counts) {
        std::string shown;
        for (std::size_t i = 0; i < 3; ++i)
            shown += std::to_string((*counts)[i]) + ", ";
        doubts.push_back({DoubtKind::IndexColumn,
                          "開始列（" + column + "）は" + LineName("データ開始行", first) + "から " +
                              shown + "… と 1 ずつ増える番号の列です。実部は次の " +
                              std::to_string(answers.firstColumn + 1) + " 列目ではありませんか"});
    }
    return doubts;
}

}  // namespace lapdesk
