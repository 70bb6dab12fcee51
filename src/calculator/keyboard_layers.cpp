#include "calculator/keyboard_layers.h"

#include <utility>

namespace lapdesk {

namespace {

constexpr int kFirstLetterKey = 12;
constexpr int kLastLetterKey = 37;

KeyCaptions MakeDesignCaptions() {
    KeyCaptions design;
    const QStringList digits{"1", "2", "3", "4", "5", "6", "7", "8", "9", "0"};
    for (int k = 0; k < digits.size(); ++k)
        design[k] = digits[k];
    design[10] = QStringLiteral("π");
    design[11] = QStringLiteral("Tab");
    for (int k = kFirstLetterKey; k <= kLastLetterKey; ++k) {
        design[k] = QChar(u'A' + (k - kFirstLetterKey));
    }
    const QStringList symbols{"/", "-", "(",     ")",  ",", ".", ";",
                              "^", ":", "Space", "\"", "@", "\\"};
    for (int k = 0; k < symbols.size(); ++k)
        design[38 + k] = symbols[k];
    return design;
}

}  // namespace

const KeyCaptions& DesignCaptions() {
    static const KeyCaptions design = MakeDesignCaptions();
    return design;
}

KeyLayers BuildKeyLayers(const KeyCaptions& design) {
    KeyLayers layers{design, design};
    for (int k = kFirstLetterKey; k <= kLastLetterKey; ++k)
        layers.normal[k] = design[k].toLower();
    const std::pair<int, const char*> fixed[] = {
        {0, "!"},  {1, ""},   {2, "#"},  {3, "$"},  {4, "%"},  {5, "&"},  {6, "'"},  {7, "{"},
        {8, "}"},  {9, ""},   {38, "?"}, {39, "_"}, {40, "["}, {41, "]"}, {42, "<"}, {43, ">"},
        {44, "+"}, {45, "="}, {46, "*"}, {48, "~"}, {49, "`"}, {50, "|"}};
    // Shifted keys 1 and 9 are blank on purpose: they insert nothing.
    for (const auto& [key, label] : fixed)
        layers.shifted[key] = QString::fromLatin1(label);
    return layers;
}

QString KeyInsertText(const QString& caption) {
    if (caption == QLatin1String("Space")) return QStringLiteral(" ");
    if (caption == QLatin1String("Tab")) return QStringLiteral("    ");
    return caption;
}

const QStringList& TenKeyCaptions() {
    static const QStringList captions{"7", "8", "9", "/", "4", "5", "6", "*",
                                      "1", "2", "3", "-", "0", ".", "^", "+"};
    return captions;
}

const QStringList& ControlKeyCaptions() {
    static const QStringList captions{"BS",  "DEL",  "CUT", "COPY", "PAST", "←",   "→",
                                      "SEL", "CAPS", "CLR", "C",    "=",    "ESC", "ENT"};
    return captions;
}

ControlKey ParseControlKey(const QString& caption) {
    static const std::pair<const char16_t*, ControlKey> table[] = {
        {u"ENT", ControlKey::Enter},  {u"CLR", ControlKey::Clear},  {u"C", ControlKey::Clear},
        {u"COPY", ControlKey::Copy},  {u"PAST", ControlKey::Paste}, {u"BS", ControlKey::BackSpace},
        {u"DEL", ControlKey::Delete}, {u"CUT", ControlKey::Cut},    {u"←", ControlKey::Left},
        {u"→", ControlKey::Right},    {u"SEL", ControlKey::Select}, {u"CAPS", ControlKey::Caps},
        {u"=", ControlKey::Equals},   {u"ESC", ControlKey::Escape}};
    for (const auto& [text, key] : table) {
        if (caption.compare(QString::fromUtf16(text), Qt::CaseInsensitive) == 0) return key;
    }
    return ControlKey::None;
}

}  // namespace lapdesk
