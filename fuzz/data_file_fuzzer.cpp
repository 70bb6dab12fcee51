// Reads the input as a transform data file (cp932 or UTF-8) and inverts what
// it holds. The first byte picks the import answers the wizard would give.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fileio/text_codec.h"
#include "transform/ldt_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace lapdesk;
    if (size == 0) return 0;
    constexpr const char* kDelimiters[] = {",", "", "\t", ";"};
    ImportAnswers answers;
    answers.ParamLine = 1 + (data[0] & 3);
    answers.DataLine = answers.ParamLine + 2 - ((data[0] >> 2) & 1);
    answers.FirstColumn = 1 + ((data[0] >> 3) & 3);
    answers.Delimiter = kDelimiters[(data[0] >> 5) & 3];
    const TextResult text =
        DecodeText(std::string_view(reinterpret_cast<const char*>(data) + 1, size - 1));
    if (!text.ok) return 0;
    TransformDriver driver;
    ReadLapLines(driver, SplitLines(text.text), "fuzz", answers);
    return 0;
}
