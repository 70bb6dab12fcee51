// A calculator session without a window, for the interpreter's tests.
#pragma once

#include "named_rows.h"

#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>

#include "interp/interpreter.h"
#include "interp/recording_view.h"

namespace lapdesk {

// Program lines joined by CR LF, as the program text holds them.
inline std::string ProgramText(std::initializer_list<std::string_view> lines) {
    std::string text;
    for (std::string_view line : lines) {
        if (!text.empty()) text += "\r\n";
        text += line;
    }
    return text;
}

// A session whose view may record more than RecordingView does.
template <typename View>
struct SessionWith {
    View view;
    Interpreter interpreter{view};
    double re = 0.0;
    double im = 0.0;

    // Sets the program text and runs it as the calculator's run command does.
    bool Run(std::string text, bool eraseGlobals = true) {
        interpreter.SetProgramText(std::move(text));
        return interpreter.RunProgram(re, im, eraseGlobals, true);
    }
    bool Run(std::initializer_list<std::string_view> lines) { return Run(ProgramText(lines)); }
    template <typename Lines>
    bool RunLines(const Lines& lines) {
        std::string text;
        for (const auto& line : lines)
            text += std::string(line) + "\r\n";
        return Run(text);
    }

    ImmediateResult Line(std::string_view line) { return interpreter.ImmediateLine(line); }
    ClsCode& Global() { return interpreter.ImmediatePage(); }
    ClsCode& Main() { return interpreter.Page(0); }

    // Index of the named variable in a page's memory, -1 when absent.
    static std::int16_t IndexOf(const ClsCode& page, std::string_view name) {
        for (std::int16_t k = 0; k < page.NumofMemory(); ++k) {
            if (page.MemoryName(k) == name) return k;
        }
        return -1;
    }
};

using Session = SessionWith<RecordingView>;

}  // namespace lapdesk
