// The lines of the memory display: one per variable of a page, and one per
// element of an array, with values in the calculator's number text.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lapdesk {

class ClsCode;

// Variable types as a page keeps them.
inline constexpr std::int16_t kScalar = 0;
inline constexpr std::int16_t kVector = 1;
inline constexpr std::int16_t kMatrix = 2;

// "name=value" for a scalar, "name(NI)" for a vector, "name(NI,NJ)" for a
// matrix.
std::string MemoryLine(const ClsCode& page, std::int16_t index, bool rounded);
std::vector<std::string> MemoryLines(const ClsCode& page, bool rounded);

// An index right-aligned in three characters; longer indices keep their last
// three digits.
std::string ArrayIndexText(int index);

// "(  i ,  j )=value" for i = 0..NI and, inside, j = 0..NJ; "(  i )=value"
// for a vector; nothing for a scalar.
std::vector<std::string> ArrayElementLines(const ClsCode& page, std::int16_t index, bool rounded);

}  // namespace lapdesk
