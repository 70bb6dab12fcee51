// The transform data file (*.Ldt): parameters, the stored samples, the time
// axis and the result as one text, written in cp932 with CR LF and read back
// through the import wizard's answers.
//
// Layout: "Word Number,  Tend      ,  Ganma ", the parameter line, the column
// header, then one line per k = 0..N-1: Re, Im (the stored samples), t_k and
// y[k]. Data made by a program are followed by two empty lines, the title
// "変換関数作成プログラムリスト" and the program text.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "transform/outcome.h"
#include "transform/transform_driver.h"

namespace lapdesk {

// The reader keeps four numbers per line: the real part can stand in
// columns 1 to 3 only, the imaginary part beside it.
inline constexpr int kLastFirstColumn = 3;

// Where the wizard says the numbers stand (lines and columns are 1-based).
struct ImportAnswers {
    int ParamLine = 2;  // the line with N, T and gamma0
    int DataLine = 4;   // the first of the N data lines
    int FirstColumn = 1;
    std::string Delimiter = ",";  // empty: a space
};

// The result text: header, parameter line, column header and N data lines,
// each ending in CR LF.
std::string WriteResultText(const TransformDriver& driver);

// The whole data file text: the result text, then, when a program made the
// data, two empty lines, the title "変換関数作成プログラムリスト" and the
// program text with CR LF line breaks.
std::string TransformFileText(const TransformDriver& driver, std::string_view programText);

// A file holds a y column only when it is the result of the samples and
// parameters beside it: without a valid result nothing is saved.
Outcome CanWriteTransformFile(const TransformDriver& driver);

// Saves the result text, and the program list when a program made the
// data, to a file (cp932, CR LF, replaced only when the whole file was
// written), or refuses when CanWriteTransformFile does. programText is the calculator's program;
// its line breaks are written as CR LF.
Outcome WriteTransformFile(TransformDriver& driver, const std::filesystem::path& path,
                           std::string_view programText);

// Reads N, T, gamma0 and N samples (cp932 or UTF-8) and runs the inversion.
// A failed read reports "データ読込み失敗" and leaves the driver as it was.
Outcome ReadLapData(TransformDriver& driver, const std::filesystem::path& path,
                    const ImportAnswers& answers);
// The same on the file's lines already decoded; `source` names them in a
// failure's reason.
Outcome ReadLapLines(TransformDriver& driver, const std::vector<std::string>& lines,
                     std::string_view source, const ImportAnswers& answers);

}  // namespace lapdesk
