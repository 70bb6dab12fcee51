#include "expr/plain_scope.h"

#include <cmath>
#include <vector>

#include "expr/evaluator.h"
#include "expr/matrix_call.h"
#include "expr/text_scan.h"
#include "expr/vocabulary.h"

namespace lapdesk {

void PlainScope::SetScalar(const std::string& name, Complex value) {
    ComplexArray scalar = ComplexArray::Vector(1);
    scalar.At(0) = value;
    arrays_[name] = std::move(scalar);
}

void PlainScope::SetArray(const std::string& name, ComplexArray array) {
    arrays_[name] = std::move(array);
}

bool PlainScope::ReadVariable(Evaluator& evaluator, std::string_view name,
                              std::span<const SubscriptScan> subscripts, Place& /*place*/,
                              Complex& value) {
    const auto found = arrays_.find(name);
    if (found == arrays_.end() || subscripts.size() > 2) return false;
    const ComplexArray& array = found->second;
    // As in the interpreter's memory, only the flat index is checked: A(2,0)
    // of a 2x2 array reaches element (0,1).
    long long index[2] = {0, 0};
    for (std::size_t k = 0; k < subscripts.size(); ++k) {
        Complex subscript;
        if (!evaluator.EvalArgument(subscripts[k], subscript)) return false;
        if (!(std::fabs(subscript.Re) < 2147483648.0)) return false;  // no int holds it
        index[k] = static_cast<long long>(subscript.Re);
    }
    const long long flat = static_cast<long long>(array.NI + 1) * index[1] + index[0];
    if (flat < 0 || flat >= static_cast<long long>(array.Values.size())) return false;
    value = array.Values[static_cast<std::size_t>(flat)];
    return true;
}

bool PlainScope::CallUserFunction(Evaluator&, std::string_view, Complex&) {
    return false;
}

bool PlainScope::CallMatrixFunction(std::size_t index, std::span<const std::string_view> arguments,
                                    Complex& value) {
    std::vector<const ComplexArray*> args;
    for (std::string_view name : arguments) {
        const auto found = arrays_.find(name);
        if (found == arrays_.end()) return false;
        args.push_back(&found->second);
    }
    std::optional<ComplexArray> array;
    const MatrixCode code = GetVocabulary().matrixFunctions.at(index).code;
    if (!ApplyMatrixFunction(code, args, value, array)) return false;
    if (array) lastArray_ = std::move(array);
    return true;
}

}  // namespace lapdesk
