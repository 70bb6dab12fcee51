// The parts of the import wizard that need no window: reading the file to
// preview, the numbered preview of its first lines, the number lists it
// offers, which entry a kept answer selects, whether the file is a data file
// the transform window saved, and which answers look wrong for the file.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
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

// The file's lines as UTF-8 (cp932 or UTF-8 input), or a reason in Japanese
// that names the file and says what is wrong: a missing or unreadable file,
// or the first line that is neither cp932 nor UTF-8.
struct PreviewFile {
    bool ok = false;
    std::vector<std::string> lines;
    std::string reason;
};
PreviewFile ReadPreviewFile(const std::filesystem::path& path);

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

// Where the numbers stand: lines and columns 1-based, an empty delimiter
// stands for a space.
struct ReadAnswers {
    int paramLine = 2;
    int dataLine = 4;
    int firstColumn = 1;
    std::string delimiter = ",";
};

// The first line of a data file the transform window saves.
inline constexpr std::string_view kSavedFileHeader = "Word Number,  Tend      ,  Ganma ";

// True when the first line is that header; spaces do not count, so a saved
// file whose spaces an editor trimmed is known as well.
bool IsSavedTransformFile(const std::vector<std::string>& lines);

// The answers that read back a saved data file: "," between the numbers,
// the parameters on line 2, the data from line 4, the real part in column 1.
ReadAnswers SavedFileAnswers();

// The pieces a line splits into, as the data reader splits it: from each
// position (after spaces) a piece runs to the next space, and the next piece
// starts after the next delimiter at or after that position.
std::vector<std::string_view> SplitPieces(std::string_view line, std::string_view delimiter);

// An answer that does not fit what the file holds.
enum class DoubtKind {
    NoParameters,   // the parameter line holds no number
    IndexColumn,    // the first column counts the lines: 0, 1, 2, ... or 1, 2, 3, ...
    TooFewNumbers,  // the first data line has no two numbers from the first column
};
struct Doubt {
    DoubtKind kind;
    std::string text;  // says which line or column and what it holds, in Japanese
};

// The doubts about reading the lines with these answers. Lines the file does
// not have raise none: the reader says then which line is missing. The first
// data line is read as the reader reads it: right after the parameter line
// when the answer is not below it.
std::vector<Doubt> FindDoubts(const std::vector<std::string>& lines, const ReadAnswers& answers);

}  // namespace lapdesk
