// The on-screen keyboard's key captions: the 51 character keys in their
// normal and shifted layers, the keypad, the control keys, and the text a
// character key inserts.
#pragma once

#include <QString>
#include <QStringList>
#include <array>

namespace lapdesk {

inline constexpr int kCharacterKeyCount = 51;
using KeyCaptions = std::array<QString, kCharacterKeyCount>;

// Design captions: digits 1..9, 0 on keys 0..9, "π" and "Tab" on 10 and 11,
// the letters A..Z on 12..37, symbols on 38..50 ("Space" on 47).
const KeyCaptions& DesignCaptions();

struct KeyLayers {
    KeyCaptions normal;   // letters in lower case
    KeyCaptions shifted;  // letters as designed, fixed symbols on digit and symbol keys
};
KeyLayers BuildKeyLayers(const KeyCaptions& design);

// What a character or keypad key inserts: "Space" one blank, "Tab" four
// blanks, any other caption itself.
QString KeyInsertText(const QString& caption);

const QStringList& TenKeyCaptions();
const QStringList& ControlKeyCaptions();

enum class ControlKey {
    Enter,
    Clear,
    Copy,
    Paste,
    BackSpace,
    Delete,
    Cut,
    Left,
    Right,
    Select,
    Caps,
    Equals,
    Escape,
    None,
};

// The control key a caption stands for, ignoring letter case.
ControlKey ParseControlKey(const QString& caption);

}  // namespace lapdesk
