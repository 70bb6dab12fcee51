#include "expr/matrix_call.h"

namespace lapdesk {

namespace {

// Number of array arguments of each matrix function, in table order.
constexpr std::size_t kArgumentCounts[] = {2, 2, 2, 1, 1, 1, 1};

}  // namespace

bool ApplyMatrixFunction(std::size_t index, std::span<const ComplexArray* const> args,
                         Complex& scalar, std::optional<ComplexArray>& array,
                         const StopPoll& poll) {
    if (index >= std::size(kArgumentCounts) || args.size() != kArgumentCounts[index]) return false;
    ComplexArray result;
    bool ok = false;
    switch (index) {
        case 0:
            ok = GaussSolve(*args[0], *args[1], result, poll);
            break;
        case 1:
            ok = MatxVec(*args[0], *args[1], result);
            break;
        case 2:
            ok = MatxMat(*args[0], *args[1], result, poll);
            break;
        case 3:
            return MatI1(*args[0], scalar);
        case 4:
            return MatJ2(*args[0], scalar);
        case 5:
            return MatI3(*args[0], scalar);
        case 6:
            ok = InvMat(*args[0], result, poll);
            break;
    }
    if (!ok) return false;
    scalar = result.Values.front();
    array = std::move(result);
    return true;
}

}  // namespace lapdesk
