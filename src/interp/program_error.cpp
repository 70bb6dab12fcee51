#include "interp/program_error.h"

#include "interp/text_helpers.h"

namespace lapdesk {

std::string PlaceName(const StatementPlace& place) {
    return place.page + ": " + std::to_string(place.statement + 1) + "行目";
}

std::string ArgumentFailureText(ProgramErrorKind kind, const std::string& argument) {
    switch (kind) {
        case ProgramErrorKind::ArgumentSubscript:
            return "引数添字式 " + argument + " 実行エラー";
        case ProgramErrorKind::ArgumentRange:
            return "引数添字値 " + argument + " 範囲外";
        default:
            return "引数式 " + argument + " 実行エラー";
    }
}

std::string MessageText(const ProgramError& error) {
    const std::string crLf(kCrLf);
    const std::string place = PlaceName(error.place);
    switch (error.kind) {
        case ProgramErrorKind::Analysis:
            return place + "解析エラー" + crLf + error.place.text + ":" + error.detail;
        case ProgramErrorKind::Run:
            return place + "実行エラー" + crLf + error.place.text;
        case ProgramErrorKind::ArgumentExpression:
        case ProgramErrorKind::ArgumentSubscript:
        case ProgramErrorKind::ArgumentRange:
            return place + "：" + ArgumentFailureText(error.kind, error.detail) + crLf +
                   error.place.text;
        case ProgramErrorKind::AbnormalEnd:
            return "実行時異常終了" + crLf + error.detail;
    }
    return place;
}

}  // namespace lapdesk
