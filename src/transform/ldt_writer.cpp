#include "transform/ldt_file.h"

#include <string>

#include "fileio/text_file.h"
#include "transform/ldt_number_format.h"

namespace lapdesk {

namespace {

constexpr std::string_view kCrLf = "\r\n";
constexpr std::string_view kProgramListTitle = "変換関数作成プログラムリスト";

// Every line break of the text (CR LF, LF or a lone CR) as CR LF.
std::string WithCrLf(std::string_view text) {
    std::string out;
    out.reserve(text.size() + text.size() / 16);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' || text[i] == '\n') {
            out += kCrLf;
            if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
        } else {
            out += text[i];
        }
    }
    return out;
}

}  // namespace

std::string WriteResultText(const TransformDriver& driver) {
    const Conditions c = driver.GetConditions();
    const SampleStore& store = driver.Store();
    std::string text;
    text.reserve(static_cast<std::size_t>(c.N + 3) * 64);
    text.append("Word Number,  Tend      ,  Ganma ").append(kCrLf);
    text.append(FormatWordNumber(c.N)).append(",").append(FormatTend(c.T)).append(",");
    text.append(FormatGanma(c.Gamma0)).append(kCrLf);
    text.append("   Real Part    ,   Image Part   ,     t      ,     y").append(kCrLf);
    for (int k = 0; k < c.N; ++k) {
        text.append(FormatSample(store[kSampleRe].Values[k])).append(",");
        text.append(FormatSample(store[kSampleIm].Values[k])).append(",");
        text.append(FormatTimeValue(c.TimeAt(k))).append(",");
        text.append(FormatTimeValue(store[kResult].Values[k])).append(kCrLf);
    }
    return text;
}

std::string TransformFileText(const TransformDriver& driver, std::string_view programText) {
    std::string text = WriteResultText(driver);
    if (driver.Source() == DataSource::Program) {
        text.append(kCrLf).append(kCrLf).append(kProgramListTitle).append(kCrLf);
        text.append(WithCrLf(programText)).append(kCrLf);
    }
    return text;
}

Outcome CanWriteTransformFile(const TransformDriver& driver) {
    if (driver.HasResult()) return Outcome::Success();
    return Outcome::Failure(
        "今の N, T, γ0 とデータに合う逆変換結果が無いので保存しません（実行又は逆変換の後に保存"
        "してください）");
}

Outcome WriteTransformFile(TransformDriver& driver, const std::filesystem::path& path,
                           std::string_view programText) {
    driver.SetStatus("");
    if (Outcome allowed = CanWriteTransformFile(driver); !allowed.ok) {
        driver.SetStatus("データ書きみ失敗");
        return allowed;
    }
    driver.SetStatus("データ書込み開始");
    const WriteResult written = WriteTextAtomic(path, TransformFileText(driver, programText));
    if (!written.ok) {
        driver.SetStatus("データ書きみ失敗");
        return Outcome::Failure(written.reason);
    }
    driver.SetStatus("データ書込み成功");
    return Outcome::Success();
}

}  // namespace lapdesk
