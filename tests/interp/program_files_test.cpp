// Runs every program of the programs folder and compares what the user sees
// with the expectations written in the program's leading comment lines:
//   ' expect: <the answer field after the run>
//   ' expect-message: <one message; "\n" stands for the line break and "\q" for
//                      an apostrophe, which a comment line cannot hold>
//   ' expect-value: <expression> = <value text, read on the immediate line after the run>
//   ' expect-hint: <the hint label>
//   ' option: case-insensitive
// The messages shown must be exactly those listed, in order; a program that
// lists none must show none.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "interp/interpreter.h"
#include "interp/recording_view.h"
#include "named_rows.h"
#include "values/number_text.h"

namespace lapdesk {
namespace {

struct ValueCheck {
    std::string expression;
    std::string text;
};

struct ProgramFile {
    std::string name;  // the file name without extension, for the test's name
    std::string text;  // lines joined by CR LF, as the calculator holds them
    std::string kai;
    bool hasKai = false;
    std::vector<std::string> messages;
    std::vector<ValueCheck> values;
    std::string hint;
    bool caseInsensitive = false;
};

// "\n" in an expectation stands for the CR LF inside a message, "\q" for an
// apostrophe (the comment holding the expectation ends at its last one).
std::string Unescape(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool escape = text[i] == '\\' && i + 1 < text.size();
        if (escape && text[i + 1] == 'n') {
            out += "\r\n";
        } else if (escape && text[i + 1] == 'q') {
            out += '\'';
        } else {
            out += text[i];
            continue;
        }
        ++i;
    }
    return out;
}

ProgramFile ReadProgram(const std::filesystem::path& path) {
    ProgramFile program;
    program.name = path.stem().string();
    std::replace_if(
        program.name.begin(), program.name.end(), [](unsigned char c) { return !std::isalnum(c); },
        '_');  // a valid test name
    std::ifstream in(path, std::ios::binary);
    std::string line;
    bool header = true;
    for (bool first = true; std::getline(in, line); first = false) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        program.text += (first ? "" : "\r\n") + line;
        header = header && line.starts_with("'");
        if (!header) continue;
        const std::size_t colon = line.find(": ");
        const std::string directive = line.substr(0, colon);
        const std::string value = colon == std::string::npos ? "" : line.substr(colon + 2);
        if (directive == "' expect") {
            program.kai = value;
            program.hasKai = true;
        } else if (directive == "' expect-message") {
            program.messages.push_back(Unescape(value));
        } else if (directive == "' expect-value") {
            const std::size_t equals = value.rfind(" = ");
            program.values.push_back({value.substr(0, equals), value.substr(equals + 3)});
        } else if (directive == "' expect-hint") {
            program.hint = value;
        } else if (line == "' option: case-insensitive") {
            program.caseInsensitive = true;
        }
    }
    return program;
}

// A missing folder gives no programs, which the test run reports as an
// uninstantiated test.
std::vector<ProgramFile> AllPrograms() {
    std::vector<ProgramFile> programs;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(LAPDESK_INTERP_PROGRAMS, error)) {
        if (entry.path().extension() == ".prg") programs.push_back(ReadProgram(entry.path()));
    }
    std::sort(programs.begin(), programs.end(),
              [](const ProgramFile& a, const ProgramFile& b) { return a.name < b.name; });
    return programs;
}

class ProgramFiles : public ::testing::TestWithParam<ProgramFile> {};

TEST_P(ProgramFiles, ShowWhatTheyExpect) {
    const ProgramFile& program = GetParam();
    ASSERT_TRUE(program.hasKai) << "the program states no expected answer";
    RecordingView view;
    Interpreter interpreter(view);
    interpreter.SetCaseSensitive(!program.caseInsensitive);
    interpreter.SetProgramText(program.text);
    double re = 0.0;
    double im = 0.0;
    const bool ok = interpreter.RunProgram(re, im, true, true);

    EXPECT_EQ(view.kai, program.kai);
    EXPECT_EQ(ok, program.kai.starts_with("Result="));
    EXPECT_EQ(view.messages, program.messages);
    EXPECT_EQ(view.hint, program.hint);
    for (const ValueCheck& check : program.values) {
        const ImmediateResult result = interpreter.ImmediateLine(check.expression);
        Complex value = result.value;
        EXPECT_TRUE(result.ok) << check.expression;
        if (result.ok) {
            EXPECT_EQ(ComplexToText(value, false), check.text) << check.expression;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Programs, ProgramFiles, ::testing::ValuesIn(AllPrograms()), RowName());

}  // namespace
}  // namespace lapdesk
