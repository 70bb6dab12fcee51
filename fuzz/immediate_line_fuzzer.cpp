// Feeds each line of the input to the calculator's immediate line, in one
// session, so that declarations and assignments of earlier lines are seen by
// later ones. The first byte picks the language options. Each line is also
// evaluated as an expression several times over: an evaluation from a kept
// scan, or from its flat steps, must give the first outcome to the bit.
#include <strings.h>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "expr/evaluator.h"
#include "expr/plain_scope.h"
#include "interp/interpreter.h"
#include "interp/recording_view.h"
#include "values/complex.h"

namespace {

// Random numbers differ from one evaluation to the next.
bool MentionsRandom(std::string_view text) {
    for (std::size_t i = 0; i + 4 <= text.size(); ++i) {
        if (strncasecmp(text.data() + i, "rand", 4) == 0) return true;
    }
    return false;
}

void CheckRepeatedEvaluation(std::string_view text) {
    using namespace lapdesk;
    if (MentionsRandom(text)) return;
    static PlainScope* const scope = [] {
        auto* made = new PlainScope;
        made->SetScalar("p", {0.5, 2});
        made->SetScalar("x", {-3, -0.0});
        return made;
    }();
    const Evaluation first = Evaluate(text, *scope);
    for (int round = 0; round < 3; ++round) {
        const Evaluation again = Evaluate(text, *scope);
        if (again.ok != first.ok || std::memcmp(&again.value, &first.value, sizeof(Complex)) != 0 ||
            again.fault != first.fault || again.message != first.message) {
            __builtin_trap();
        }
    }
}

}  // namespace

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
        CheckRepeatedEvaluation(input.substr(0, end));
        input = end == std::string_view::npos ? std::string_view{} : input.substr(end + 1);
    }
    return 0;
}
