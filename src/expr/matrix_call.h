// Dispatches the matrix functions of the vocabulary to the matrix routines.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "values/matrix.h"

namespace lapdesk {

// The matrix functions of the language.
enum class MatrixCode : std::uint8_t { Gauss, MatxVec, MatxMat, MatI1, MatJ2, MatI3, InvMat };

// What a matrix function gives: a number, or an array that an assignment of
// the whole call stores as a vector or as a matrix.
enum class MatrixResult : std::uint8_t { Scalar, Vector, Matrix };

// Applies a matrix function to the arrays. Scalar results go into `scalar`,
// array results into `array`. False on a wrong argument count, shapes that do
// not fit, or a fault inside the routine.
// `poll` is handed to the routines that take O(n^3) work.
bool ApplyMatrixFunction(MatrixCode code, std::span<const ComplexArray* const> args,
                         Complex& scalar, std::optional<ComplexArray>& array,
                         const StopPoll& poll = {});

}  // namespace lapdesk
