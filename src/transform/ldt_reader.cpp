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
    return std::to_string(line) + " 行目";
}

// "2 行目（パラメータ行）": the line and what it is read as.
std::string LineText(std::size_t line, std::string_view role) {
    std::string text = LineText(line);
    text.append("（").append(role).append("）");
    return text;
}

constexpr std::string_view kParameterRole = "パラメータ行";
constexpr std::string_view kDataRole = "データ";

// What a line holds, quoted for a reason between 「」; a long line is cut
// after 40 characters (UTF-8 sequences are kept whole) and ends in "…".
std::string Found(std::string_view line) {
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

Outcome CheckAnswers(const ImportAnswers& answers) {
    if (answers.ParamLine < 1 || answers.DataLine < 1 || answers.FirstColumn < 1) {
        return Outcome::Failure("行と列の番号は 1 から数えます（パラメータ行 " +
                                std::to_string(answers.ParamLine) + "、データ開始行 " +
                                std::to_string(answers.DataLine) + "、開始列 " +
                                std::to_string(answers.FirstColumn) + " が指定されました）");
    }
    if (answers.FirstColumn > kLastFirstColumn) {
        return Outcome::Failure("開始列 " + std::to_string(answers.FirstColumn) +
                                " は読めません：1 行から読む数は 4 個までなので、実部の列は 1～3 "
                                "にしてください");
    }
    return Outcome::Success();
}

// The parameter line: N (rounded to an integer), T and gamma0.
Outcome ParseParameters(std::string_view line, std::size_t lineNumber, std::string_view delimiter,
                        NumberRow& row, LapData& data) {
    const std::string where = LineText(lineNumber, kParameterRole);
    int count = 0;
    if (!SplitNumbers(line, delimiter, 3, count, row)) {
        return Outcome::Failure(where + "：N, T, γ0 の 3 個の数が要りますが、空行です");
    }
    if (count < 3) {
        return Outcome::Failure(where + "：N, T, γ0 の 3 個の数が要りますが、" +
                                std::to_string(count) + " 個しかありません：" + Found(line));
    }
    const double n = std::nearbyint(row[0]);
    if (!(n >= 128 && n <= 4096) || (static_cast<int>(n) & (static_cast<int>(n) - 1)) != 0) {
        return Outcome::Failure(where +
                                "：N は 128 から 4096 までの 2 のべき乗にしてください。1 列目は " +
                                DoubleToText(row[0]) + " です：" + Found(line));
    }
    if (!(row[1] > 0.0 && std::isfinite(row[1])) || !(row[2] > 0.0 && std::isfinite(row[2]))) {
        return Outcome::Failure(where + "：T と γ0 は 0 より大きい数にしてください。2 列目は " +
                                DoubleToText(row[1]) + "、3 列目は " + DoubleToText(row[2]) +
                                " です：" + Found(line));
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
        return Outcome::Failure("ファイルは " + std::to_string(lines.size()) +
                                " 行しかありません：" + LineText(first + 1) +
                                "から N = " + std::to_string(data.N) + " 行のデータを読むには " +
                                std::to_string(first + data.N) + " 行要ります");
    }
    const int column = answers.FirstColumn - 1;
    for (std::size_t i = 0; i < static_cast<std::size_t>(data.N); ++i) {
        int count = 0;
        const std::string& line = lines[first + i];
        const auto where = [&] { return LineText(first + i + 1, kDataRole); };
        if (!SplitNumbers(line, answers.Delimiter, answers.FirstColumn + 2, count, row)) {
            return Outcome::Failure(where() + "：数がありません（空行です）");
        }
        for (const int at : {column, column + 1}) {
            if (!std::isfinite(row[at])) {
                return Outcome::Failure(where() + "：" + std::to_string(at + 1) +
                                        " 列目の数が大きすぎて読めません：" + Found(line));
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
        const std::string lineCount =
            lines.empty() ? std::string("ファイルは空で")
                          : "ファイルは " + std::to_string(lines.size()) + " 行しかなく";
        return Outcome::Failure(lineCount + "、パラメータ行（" + LineText(paramLine) +
                                "）がありません");
    }
    NumberRow row{};  // kept from line to line, as the reader always has
    Outcome parsed = ParseParameters(lines[paramLine - 1], paramLine, answers.Delimiter, row, data);
    if (!parsed.ok) return parsed;
    const std::size_t first = std::max(paramLine, static_cast<std::size_t>(answers.DataLine - 1));
    return ParseSamples(lines, first, answers, row, data);
}

Outcome ReadFailed(TransformDriver& driver, std::string reason) {
    driver.SetStatus("データ読込み失敗");
    return Outcome::Failure(std::move(reason));
}

}  // namespace

Outcome ReadLapData(TransformDriver& driver, const std::filesystem::path& path,
                    const ImportAnswers& answers) {
    driver.SetStatus("");
    const TextResult text = ReadText(path);
    if (!text.ok) return ReadFailed(driver, text.reason);
    return ReadLapLines(driver, SplitLines(text.text), QuotedPath(path), answers);
}

Outcome ReadLapLines(TransformDriver& driver, const std::vector<std::string>& lines,
                     std::string_view source, const ImportAnswers& answers) {
    driver.SetStatus("データ読込み開始");
    LapData data;
    const Outcome parsed = ParseLapData(lines, answers, data);
    if (!parsed.ok) {
        return ReadFailed(driver, std::string(source).append("：").append(parsed.reason));
    }
    driver.LoadFileData(data.N, data.T, data.Gamma0, data.Re, data.Im);
    driver.SetStatus("データ読込み成功");
    return driver.Invert();
}

}  // namespace lapdesk
