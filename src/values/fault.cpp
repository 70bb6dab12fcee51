#include "values/fault.h"

#include <cmath>

namespace lapdesk {

namespace {

const char* DescriptionOf(FaultCode code) {
    switch (code) {
        case FaultCode::Overflow:
            return "オーバーフローしました。";
        case FaultCode::SubscriptOutOfRange:
            return "インデックスが有効範囲にありません。";
        case FaultCode::DivisionByZero:
            return "0 で除算しました。";
        case FaultCode::StackSpace:
            return "スタック領域が不足しています。";
    }
    return "実行時エラーです。";
}

}  // namespace

RuntimeFault::RuntimeFault(FaultCode code) : std::runtime_error(DescriptionOf(code)), code_(code) {}

void RaiseFault(FaultCode code) {
    throw RuntimeFault(code);
}

std::int16_t RoundToInt16(double x) {
    const double rounded = std::nearbyint(x);
    if (!(rounded >= -32768.0 && rounded <= 32767.0)) RaiseFault(FaultCode::Overflow);
    return static_cast<std::int16_t>(rounded);
}

}  // namespace lapdesk
