// The programs of the two sample menus: general examples of the language,
// and transform examples that leave F(p) as the program's result for the
// global complex variable p. Each states its expected result in a comment.
#pragma once

#include <vector>

namespace lapdesk {

struct SampleProgram {
    const char* title;  // the menu entry
    const char* text;   // lines separated by "\n"
};

const std::vector<SampleProgram>& GeneralSamples();
const std::vector<SampleProgram>& TransformSamples();

}  // namespace lapdesk
