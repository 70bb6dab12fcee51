// Run-time faults of the calculator language (overflow, division by zero,
// subscript out of range). Arithmetic raises them; the evaluator's entry point
// and the interpreter's page run are the places that trap them and turn them
// into the user's message.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace lapdesk {

enum class FaultCode : int {
    Overflow = 6,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    StackSpace = 28,
};

class RuntimeFault : public std::runtime_error {
  public:
    explicit RuntimeFault(FaultCode code);
    FaultCode code() const { return code_; }
    // Short Japanese description shown after "実行時異常終了".
    const char* description() const { return what(); }

  private:
    FaultCode code_;
};

[[noreturn]] void RaiseFault(FaultCode code);

// Raises the overflow fault unless x is a finite double.
inline double Checked(double x) {
    if (x - x != 0.0) RaiseFault(FaultCode::Overflow);  // inf or NaN
    return x;
}

// 16-bit signed arithmetic for the interpreter's counts, indices and bounds:
// a result outside -32768..32767 is the overflow fault, never a wrap.
inline std::int16_t ToInt16(long long x) {
    if (x < -32768 || x > 32767) RaiseFault(FaultCode::Overflow);
    return static_cast<std::int16_t>(x);
}
inline std::int16_t Add16(std::int16_t a, std::int16_t b) {
    return ToInt16(static_cast<long long>(a) + b);
}
// A table of `count` entries can take one more only while count + 1 is
// still a 16-bit number; otherwise the overflow fault.
inline void RequireRoomForOneMore(std::int16_t count) {
    ToInt16(static_cast<long long>(count) + 1);
}
inline std::int16_t Sub16(std::int16_t a, std::int16_t b) {
    return ToInt16(static_cast<long long>(a) - b);
}
// A double rounded to the nearest integer (ties to even) as a 16-bit index;
// out of range (or not finite) is the overflow fault, checked before any
// conversion.
std::int16_t RoundToInt16(double x);
inline std::int16_t Mul16(std::int16_t a, std::int16_t b) {
    return ToInt16(static_cast<long long>(a) * b);
}

}  // namespace lapdesk
