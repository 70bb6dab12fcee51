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
#include <sstream>
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
        const std::string_view pair = text.substr(i, 2);
        if (pair == "\\n" || pair == "\\q") {
            out += pair == "\\n" ? "\r\n" : "'";
            ++i;
        } else {
            out += text[i];
        }
    }
    return out;
}

bool TakeDirective(std::string_view line, std::string_view directive, std::string& value) {
    if (!line.starts_with(directive)) return false;
    value = std::string(line.substr(directive.size()));
    return true;
}

ProgramFile ReadProgram(const std::filesystem::path& path) {
    ProgramFile program;
    program.name = path.stem().string();
    for (char& c : program.name) {
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';  // a valid test name
    }
    std::ifstream in(path, std::ios::binary);
    std::stringstream content;
    content << in.rdbuf();
    std::string line;
    bool header = true;
    std::vector<std::string> lines;
    while (std::getline(content, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(line);
        header = header && line.starts_with("'");
        if (!header) continue;
        std::string value;
        if (TakeDirective(line, "' expect: ", value)) {
            program.kai = value;
            program.hasKai = true;
        } else if (TakeDirective(line, "' expect-message: ", value)) {
            program.messages.push_back(Unescape(value));
        } else if (TakeDirective(line, "' expect-value: ", value)) {
            const std::size_t equals = value.rfind(" = ");
            program.values.push_back({value.substr(0, equals), value.substr(equals + 3)});
        } else if (TakeDirective(line, "' expect-hint: ", value)) {
            program.hint = value;
        } else if (line == "' option: case-insensitive") {
            program.caseInsensitive = true;
        }
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0) program.text += "\r\n";
        program.text += lines[i];
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

INSTANTIATE_TEST_SUITE_P(Programs, ProgramFiles, ::testing::ValuesIn(AllPrograms()),
                         [](const ::testing::TestParamInfo<ProgramFile>& info) {
                             return info.param.name;
                         });

}  // namespace
}  // namespace lapdesk
