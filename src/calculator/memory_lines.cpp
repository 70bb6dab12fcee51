#include "calculator/memory_lines.h"

#include "interp/code_page.h"
#include "values/number_text.h"

namespace lapdesk {

namespace {

std::string ValueText(double re, double im, bool rounded) {
    Complex z{re, im};
    return ComplexToText(z, rounded);
}

std::string ElementValue(const ClsCode& page, std::int16_t index, int i, int j, bool rounded) {
    std::int32_t flat = -1;
    double re = 0.0;
    double im = 0.0;
    page.AVariableValueDirectGet(index, static_cast<std::int16_t>(i), static_cast<std::int16_t>(j),
                                 flat, re, im);
    return ValueText(re, im, rounded);
}

}  // namespace

std::string MemoryLine(const ClsCode& page, std::int16_t index, bool rounded) {
    std::string name;
    std::int16_t typ = 0;
    std::int16_t ni = 0;
    std::int16_t nj = 0;
    double re = 0.0;
    double im = 0.0;
    page.AImidateGetMemoryInformation(index, name, typ, ni, nj, re, im);
    if (typ == kVector) return name + "(" + std::to_string(ni) + ")";
    if (typ == kMatrix) return name + "(" + std::to_string(ni) + "," + std::to_string(nj) + ")";
    return name + "=" + ValueText(re, im, rounded);
}

std::vector<std::string> MemoryLines(const ClsCode& page, bool rounded) {
    std::vector<std::string> lines;
    for (std::int16_t k = 0; k < page.NumofMemory(); ++k)
        lines.push_back(MemoryLine(page, k, rounded));
    return lines;
}

std::string ArrayIndexText(int index) {
    const std::string padded = "  " + std::to_string(index);
    return padded.substr(padded.size() - 3);
}

std::vector<std::string> ArrayElementLines(const ClsCode& page, std::int16_t index, bool rounded) {
    std::vector<std::string> lines;
    const std::int16_t typ = page.MemoryTyp(index);
    const int ni = page.MemoryNI(index);
    const int nj = page.MemoryNJ(index);
    for (int i = 0; typ != kScalar && i <= ni; ++i) {
        if (typ == kVector) {
            lines.push_back("(" + ArrayIndexText(i) +
                            " )=" + ElementValue(page, index, i, 0, rounded));
            continue;
        }
        for (int j = 0; j <= nj; ++j) {
            lines.push_back("(" + ArrayIndexText(i) + " ," + ArrayIndexText(j) +
                            " )=" + ElementValue(page, index, i, j, rounded));
        }
    }
    return lines;
}

}  // namespace lapdesk
