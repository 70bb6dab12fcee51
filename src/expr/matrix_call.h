// Dispatches the matrix functions of the vocabulary to the matrix routines.
#pragma once

#include <optional>
#include <span>

#include "values/matrix.h"

namespace lapdesk {

// Applies matrix function `index` ("Gauss(" is 0 ... "INVMAT(" is 6) to the
// arrays. Scalar results ("MatI1(", "MatJ2(", "MatI3(") go into `scalar`,
// array results into `array`. False on a wrong argument count, shapes that do
// not fit, or a fault inside the routine.
// `poll` is handed to the routines that take O(n^3) work.
bool ApplyMatrixFunction(std::size_t index, std::span<const ComplexArray* const> args,
                         Complex& scalar, std::optional<ComplexArray>& array,
                         const StopPoll& poll = {});

}  // namespace lapdesk
