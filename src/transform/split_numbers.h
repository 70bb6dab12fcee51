// The number splitter of the data-file reader.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace lapdesk {

// The reader keeps four numbers per line (positions 1..4 at indices 0..3).
using NumberRow = std::array<double, 4>;

// The number at the start of the text, as the general numeric reader takes
// it: [sign] digits [. digits] [E|e [sign] digits], stopping at the first
// character that cannot continue it; no number gives 0. A number beyond the
// range of a double gives +-HUGE_VAL, one too small for it gives 0.
double LeadingNumber(std::string_view text);
// The same, or none when the text does not begin with a number.
std::optional<double> LeadingNumberIfAny(std::string_view text);

// Splits a line into numbers: from each position (after spaces) the token
// runs to the next space and its leading number is stored; the next token
// starts after the next delimiter at or after that position (a space when
// the delimiter is empty). Stops at the end of the line, after max + 1
// numbers, or when the row is full. Positions the line does not reach keep
// their old values. Returns false (count 0) for a line that is blank.
bool SplitNumbers(std::string_view line, std::string_view delimiter, int max, int& count,
                  NumberRow& values);

}  // namespace lapdesk
