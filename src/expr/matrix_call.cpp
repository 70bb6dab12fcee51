#include "expr/matrix_call.h"

namespace lapdesk {

namespace {

// Number of array arguments of each matrix function.
std::size_t ArgumentCount(MatrixCode code) {
    const bool twoArrays =
        code == MatrixCode::Gauss || code == MatrixCode::MatxVec || code == MatrixCode::MatxMat;
    return twoArrays ? 2 : 1;
}

}  // namespace

bool ApplyMatrixFunction(MatrixCode code, std::span<const ComplexArray* const> args,
                         Complex& scalar, std::optional<ComplexArray>& array,
                         const StopPoll& poll) {
    if (args.size() != ArgumentCount(code)) return false;
    ComplexArray result;
    bool ok = false;
    switch (code) {
        case MatrixCode::Gauss:
            ok = GaussSolve(*args[0], *args[1], result, poll);
            break;
        case MatrixCode::MatxVec:
            ok = MatxVec(*args[0], *args[1], result);
            break;
        case MatrixCode::MatxMat:
            ok = MatxMat(*args[0], *args[1], result, poll);
            break;
        case MatrixCode::MatI1:
            return MatI1(*args[0], scalar);
        case MatrixCode::MatJ2:
            return MatJ2(*args[0], scalar);
        case MatrixCode::MatI3:
            return MatI3(*args[0], scalar);
        case MatrixCode::InvMat:
            ok = InvMat(*args[0], result, poll);
            break;
    }
    if (!ok) return false;
    scalar = result.Values.front();
    array = std::move(result);
    return true;
}

}  // namespace lapdesk
