// Feeds each line of the input to the calculator's immediate line, in one
// session, so that declarations and assignments of earlier lines are seen by
// later ones. The first byte picks the language options.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "interp/interpreter.h"
#include "interp/recording_view.h"
#include "values/complex.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace lapdesk;
    if (size == 0) return 0;
    RecordingView view;
    Interpreter session(view);
    session.SetCaseSensitive((data[0] & 1) == 0);
    AngleUnit = (data[0] & 2) != 0 ? kDegreeUnit : 1.0;
    std::string_view input(reinterpret_cast<const char*>(data) + 1, size - 1);
    while (!input.empty()) {
        const std::size_t end = input.find('\n');
        session.ImmediateLine(input.substr(0, end));
        input = end == std::string_view::npos ? std::string_view{} : input.substr(end + 1);
    }
    return 0;
}
