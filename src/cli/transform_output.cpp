#include "transform_output.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <iostream>

#include "fileio/text_file.h"
#include "plot_option.h"
#include "transform/ldt_file.h"
#include "transform/transform_driver.h"

namespace lapdesk::cli {

namespace {

std::string SeventeenDigits(double x) {
    char buffer[32];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, x, std::chars_format::general, 17);
    return std::string(buffer, result.ptr);
}

// t, y, [error,] re, im for k = 0..N-1 with 17 significant digits, LF line ends.
std::string CsvTable(const TransformDriver& driver, const std::vector<double>* errorBand) {
    const Conditions c = driver.GetConditions();
    const SampleStore& store = driver.Store();
    std::string text = errorBand ? "t,y,error,re,im\n" : "t,y,re,im\n";
    for (int k = 0; k < c.N; ++k) {
        text += SeventeenDigits(c.TimeAt(k)) + "," + SeventeenDigits(store[kResult].Values[k]) +
                "," + (errorBand ? SeventeenDigits((*errorBand)[k]) + "," : "") +
                SeventeenDigits(store[kSampleRe].Values[k]) + "," +
                SeventeenDigits(store[kSampleIm].Values[k]) + "\n";
    }
    return text;
}

// The file text with the terminal's line ends.
std::string WithLf(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (const char c : text) {
        if (c != '\r') out += c;
    }
    return out;
}

int Fail(std::string_view verb, const std::string& reason) {
    std::cerr << "lapdesk-cli " << verb << ": " << reason << '\n';
    return 1;
}

}  // namespace

void TransformOutputOptions::AddTo(CLI::App& command) {
    command.add_option(
        "-o,--output", output,
        "Write the result as a data file (cp932, CR LF) instead of to standard output");
    command.add_option("--csv", csv, "Also write t,y,re,im for every point as CSV");
    command.add_option("--plot", plot, "Also draw f(t) into OUT.png or OUT.svg")
        ->check([](const std::string&) { return PlotUnavailableReason(); });
}

void ReportStatusOnStderr(TransformDriver& driver) {
    driver.SetStatusSink([](std::string_view text) {
        if (!text.empty()) std::cerr << text << '\n';
    });
}

int WriteTransformOutputs(TransformDriver& driver, std::string_view programText,
                          const TransformOutputOptions& options, std::string_view verb,
                          const std::vector<double>* errorBand) {
    if (options.output) {
        const Outcome written = WriteTransformFile(driver, *options.output, programText);
        if (!written.ok) return Fail(verb, written.reason);
    } else {
        std::cout << WithLf(TransformFileText(driver, programText));
    }
    if (options.csv) {
        const WriteResult written = WriteBytesAtomic(*options.csv, CsvTable(driver, errorBand));
        if (!written.ok) return Fail(verb, written.reason);
    }
    if (options.plot) {
        const std::string reason = WritePlotImage(driver, *options.plot);
        if (!reason.empty()) return Fail(verb, reason);
    }
    return 0;
}

}  // namespace lapdesk::cli
