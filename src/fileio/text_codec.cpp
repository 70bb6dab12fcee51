#include "fileio/text_codec.h"

#include <iconv.h>

#include <cerrno>
#include <cstdio>

namespace lapdesk {

namespace {

constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";

// Owns one iconv conversion descriptor.
class Converter {
  public:
    Converter(const char* to, const char* from) : cd_(iconv_open(to, from)) {}
    ~Converter() {
        if (ok()) iconv_close(cd_);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    bool ok() const { return cd_ != reinterpret_cast<iconv_t>(-1); }
    iconv_t get() const { return cd_; }

  private:
    iconv_t cd_;
};

// The code point of the UTF-8 sequence at the start of the (valid) text.
char32_t CodePointAt(std::string_view s) {
    const auto lead = static_cast<unsigned char>(s[0]);
    const int length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    char32_t cp = length == 1 ? lead : lead & (0x7F >> length);
    for (int i = 1; i < length && i < static_cast<int>(s.size()); ++i) {
        cp = (cp << 6) | (static_cast<unsigned char>(s[i]) & 0x3F);
    }
    return cp;
}

std::string Hex(unsigned value, int digits) {
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "%0*X", digits, value);
    return buffer;
}

enum class Direction { ToUtf8, ToCp932 };

std::string ConversionFailure(Direction direction, std::string_view input, std::size_t offset,
                              int error) {
    const std::string at = "（" + std::to_string(offset) + " バイト目）";
    if (error == EINVAL) return "テキストが多バイト文字の途中で終わっています" + at;
    if (direction == Direction::ToCp932) {
        return "文字 U+" + Hex(CodePointAt(input.substr(offset)), 4) + " は cp932 で書けません" +
               at;
    }
    return "バイト 0x" + Hex(static_cast<unsigned char>(input[offset]), 2) +
           " は cp932 の文字になりません" + at;
}

TextResult Convert(Direction direction, std::string_view input) {
    const Converter converter(direction == Direction::ToUtf8 ? "UTF-8" : "CP932",
                              direction == Direction::ToUtf8 ? "CP932" : "UTF-8");
    if (!converter.ok()) return {false, {}, "この環境には cp932 の文字変換がありません"};
    std::string source(input);
    std::string output(input.size() * 3 + 16, '\0');
    char* in = source.data();
    std::size_t inLeft = source.size();
    std::size_t written = 0;
    while (inLeft > 0) {
        char* out = output.data() + written;
        std::size_t outLeft = output.size() - written;
        const std::size_t rc = iconv(converter.get(), &in, &inLeft, &out, &outLeft);
        written = output.size() - outLeft;
        if (rc != static_cast<std::size_t>(-1)) break;
        if (errno == E2BIG) {
            output.resize(output.size() * 2);
            continue;
        }
        const int error = errno;
        const auto offset = static_cast<std::size_t>(in - source.data());
        return {false, {}, ConversionFailure(direction, input, offset, error)};
    }
    output.resize(written);
    return {true, std::move(output), {}};
}

// Length of the UTF-8 sequence starting at s[i], or 0 when it is malformed.
std::size_t Utf8SequenceLength(std::string_view s, std::size_t i) {
    const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(s[k]); };
    const unsigned char lead = byte(i);
    if (lead < 0x80) return 1;
    std::size_t length = 0;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        if (lead == 0xE0) low = 0xA0;   // overlong
        if (lead == 0xED) high = 0x9F;  // surrogates
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        if (lead == 0xF0) low = 0x90;   // overlong
        if (lead == 0xF4) high = 0x8F;  // past U+10FFFF
    } else {
        return 0;
    }
    if (i + length > s.size()) return 0;
    if (byte(i + 1) < low || byte(i + 1) > high) return 0;
    for (std::size_t k = 2; k < length; ++k) {
        if (byte(i + k) < 0x80 || byte(i + k) > 0xBF) return 0;
    }
    return length;
}

}  // namespace

TextResult Cp932ToUtf8(std::string_view cp932) {
    return Convert(Direction::ToUtf8, cp932);
}

TextResult Utf8ToCp932(std::string_view utf8) {
    if (!IsValidUtf8(utf8)) return {false, {}, "テキストが UTF-8 として読めません"};
    return Convert(Direction::ToCp932, utf8);
}

bool IsValidUtf8(std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size();) {
        const std::size_t length = Utf8SequenceLength(bytes, i);
        if (length == 0) return false;
        i += length;
    }
    return true;
}

TextResult DecodeText(std::string_view bytes) {
    if (bytes.starts_with(kUtf8Bom)) {
        bytes.remove_prefix(kUtf8Bom.size());
        if (!IsValidUtf8(bytes))
            return {false, {}, "UTF-8 の印（BOM）で始まるのに UTF-8 として読めません"};
        return {true, std::string(bytes), {}};
    }
    if (IsValidUtf8(bytes)) return {true, std::string(bytes), {}};
    return Cp932ToUtf8(bytes);
}

std::vector<std::string> SplitLines(std::string_view text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' && text[i] != '\n') continue;
        lines.emplace_back(text.substr(start, i - start));
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
        start = i + 1;
    }
    if (start < text.size()) lines.emplace_back(text.substr(start));
    return lines;
}

}  // namespace lapdesk
