#include "transform/ldt_file.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fileio/text_file.h"
#include "transform/split_numbers.h"
#include "values/number_text.h"

namespace lapdesk {

namespace {

// Everything a file holds, gathered before anything in the driver changes.
struct LapData {
    std::int16_t N = 0;
    double T = 0.0;
    double Gamma0 = 0.0;
    std::vector<double> Re;
    std::vector<double> Im;
};

static_assert(static_cast<std::size_t>(kLastFirstColumn) + 1 == std::tuple_size_v<NumberRow>);

std::string LineText(std::size_t line) {
    return "line " + std::to_string(line);
}

// What a line holds, quoted for a reason; a long line is cut after 40
// characters (UTF-8 sequences are kept whole).
std::string Found(std::string_view line) {
    constexpr std::size_t kShown = 40;
    std::size_t end = 0;
    for (std::size_t characters = 0; end < line.size() && characters < kShown; ++characters) {
        do {
            ++end;
        } while (end < line.size() && (static_cast<unsigned char>(line[end]) & 0xC0) == 0x80);
    }
    std::string quoted(1, '"');
    quoted.append(line.substr(0, end)).append(end < line.size() ? "...\"" : "\"");
    return quoted;
}

Outcome CheckAnswers(const ImportAnswers& answers) {
    if (answers.ParamLine < 1 || answers.DataLine < 1 || answers.FirstColumn < 1) {
        return Outcome::Failure("line and column numbers start at 1");
    }
    if (answers.FirstColumn > kLastFirstColumn) {
        return Outcome::Failure("first column " + std::to_string(answers.FirstColumn) +
                                ": the reader keeps 4 numbers per line, so the real part can "
                                "stand in columns 1 to 3 only");
    }
    return Outcome::Success();
}

// The parameter line: N (rounded to an integer), T and gamma0.
Outcome ParseParameters(std::string_view line, std::size_t lineNumber, std::string_view delimiter,
                        NumberRow& row, LapData& data) {
    int count = 0;
    if (!SplitNumbers(line, delimiter, 3, count, row) || count < 3) {
        return Outcome::Failure(LineText(lineNumber) + ": expected N, T and gamma0, found " +
                                std::to_string(count) + " numbers in " + Found(line));
    }
    const double n = std::nearbyint(row[0]);
    if (!(n >= 128 && n <= 4096) || (static_cast<int>(n) & (static_cast<int>(n) - 1)) != 0) {
        return Outcome::Failure(LineText(lineNumber) +
                                ": N must be a power of two from 128 to 4096, not " +
                                DoubleToText(row[0]) + " (column 1 of " + Found(line) + ")");
    }
    if (!(row[1] > 0.0 && std::isfinite(row[1])) || !(row[2] > 0.0 && std::isfinite(row[2]))) {
        return Outcome::Failure(LineText(lineNumber) +
                                ": T and gamma0 must be numbers greater than 0, found " +
                                DoubleToText(row[1]) + " and " + DoubleToText(row[2]) +
                                " in columns 2 and 3 of " + Found(line));
    }
    data.N = static_cast<std::int16_t>(n);
    data.T = row[1];
    data.Gamma0 = row[2];
    return Outcome::Success();
}

// The N data lines from the first data line on; a line with fewer numbers
// than needed keeps the previous line's values in the missing positions.
Outcome ParseSamples(const std::vector<std::string>& lines, std::size_t first,
                     const ImportAnswers& answers, NumberRow& row, LapData& data) {
    if (lines.size() < first + data.N) {
        return Outcome::Failure("the file has " + std::to_string(lines.size()) + " lines, but " +
                                std::to_string(data.N) + " data lines from " + LineText(first + 1) +
                                " need " + std::to_string(first + data.N));
    }
    const int column = answers.FirstColumn - 1;
    for (std::size_t i = 0; i < static_cast<std::size_t>(data.N); ++i) {
        int count = 0;
        const std::string& line = lines[first + i];
        if (!SplitNumbers(line, answers.Delimiter, answers.FirstColumn + 2, count, row)) {
            return Outcome::Failure(LineText(first + i + 1) + ": no numbers, the line is blank");
        }
        for (const int at : {column, column + 1}) {
            if (!std::isfinite(row[at])) {
                return Outcome::Failure(LineText(first + i + 1) +
                                        ": a number is out of range in column " +
                                        std::to_string(at + 1) + " of " + Found(line));
            }
        }
        data.Re.push_back(row[column]);
        data.Im.push_back(row[column + 1]);
    }
    return Outcome::Success();
}

// Data start at line D, or right after the parameter line when D is not
// below it.
Outcome ParseLapData(const std::vector<std::string>& lines, const ImportAnswers& answers,
                     LapData& data) {
    if (Outcome checked = CheckAnswers(answers); !checked.ok) return checked;
    const auto paramLine = static_cast<std::size_t>(answers.ParamLine);
    if (lines.size() < paramLine) {
        return Outcome::Failure("the file has " + std::to_string(lines.size()) +
                                " lines and no parameter " + LineText(paramLine));
    }
    NumberRow row{};  // kept from line to line, as the reader always has
    Outcome parsed = ParseParameters(lines[paramLine - 1], paramLine, answers.Delimiter, row, data);
    if (!parsed.ok) return parsed;
    const std::size_t first = std::max(paramLine, static_cast<std::size_t>(answers.DataLine - 1));
    return ParseSamples(lines, first, answers, row, data);
}

// 'path', built by appending (GCC 12 reports a false -Wrestrict for a
// literal + std::string at -O3).
std::string QuotedPath(const std::filesystem::path& path) {
    std::string quoted(1, '\'');
    quoted.append(path.string()).push_back('\'');
    return quoted;
}

Outcome ReadFailed(TransformDriver& driver, std::string reason) {
    driver.SetStatus("データ読込み失敗");
    return Outcome::Failure(std::move(reason));
}

}  // namespace

Outcome ReadLapData(TransformDriver& driver, const std::filesystem::path& path,
                    const ImportAnswers& answers) {
    driver.SetStatus("");
    const LinesResult read = ReadTextLines(path);
    if (!read.ok) return ReadFailed(driver, read.reason);
    return ReadLapLines(driver, read.lines, QuotedPath(path), answers);
}

Outcome ReadLapLines(TransformDriver& driver, const std::vector<std::string>& lines,
                     std::string_view source, const ImportAnswers& answers) {
    driver.SetStatus("データ読込み開始");
    LapData data;
    const Outcome parsed = ParseLapData(lines, answers, data);
    if (!parsed.ok) {
        return ReadFailed(driver, std::string(source).append(": ").append(parsed.reason));
    }
    driver.LoadFileData(data.N, data.T, data.Gamma0, data.Re, data.Im);
    driver.SetStatus("データ読込み成功");
    return driver.Invert();
}

}  // namespace lapdesk
