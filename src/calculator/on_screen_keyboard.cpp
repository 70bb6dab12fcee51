#include "calculator/on_screen_keyboard.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

namespace lapdesk {

namespace {

// Character keys by row, in the order of a typewriter.
const std::vector<std::vector<int>>& KeyRows() {
    static const std::vector<std::vector<int>> rows{
        {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11},
        {28, 34, 16, 29, 31, 36, 32, 20, 26, 27, 40, 41},
        {12, 30, 15, 17, 18, 19, 21, 22, 23, 44, 46, 48},
        {37, 35, 14, 33, 13, 25, 24, 42, 43, 38, 39, 50},
        {45, 49, 47},
    };
    return rows;
}

// The space bar spans the rest of the last row.
constexpr int kSpaceKey = 47;
constexpr int kSpaceSpan = 8;

// One grid holds the three blocks, so that their rows line up: the
// character keys in columns 0..11, the keypad in 13..16 (four rows, the ESC
// hint below them), the control keys in 18..20.
constexpr int kCharacterColumns = 12;
constexpr int kKeypadColumn = kCharacterColumns + 1;
constexpr int kKeypadColumns = 4;
constexpr int kControlColumn = kKeypadColumn + kKeypadColumns + 1;

// Where each control key stands, by caption (every caption of
// ControlKeyCaptions has its place): the editing keys first, the two arrows
// side by side, the keys that end an entry at the bottom.
struct ControlPlace {
    const char16_t* caption;
    int row;
    int column;
    int span;
};
constexpr ControlPlace kControlPlaces[] = {
    {u"BS", 0, 0, 1},   {u"DEL", 0, 1, 1},  {u"CLR", 0, 2, 1}, {u"←", 1, 0, 1},
    {u"→", 1, 1, 1},    {u"SEL", 1, 2, 1},  {u"CUT", 2, 0, 1}, {u"COPY", 2, 1, 1},
    {u"PAST", 2, 2, 1}, {u"CAPS", 3, 0, 1}, {u"C", 3, 1, 1},   {u"=", 3, 2, 1},
    {u"ESC", 4, 0, 1},  {u"ENT", 4, 1, 2},
};

// A caption as a button shows it: "&" would otherwise mark a shortcut.
QString Shown(const QString& caption) {
    QString text = caption;
    return text.replace('&', QStringLiteral("&&"));
}

}  // namespace

OnScreenKeyboard::OnScreenKeyboard(QWidget* parent)
    : QFrame(parent), layers_(BuildKeyLayers(DesignCaptions())) {
    setObjectName(QStringLiteral("FrameKeyBoard"));
    setFrameShape(QFrame::StyledPanel);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(6, 6, 6, 6);
    grid->setSpacing(3);
    for (const int gap : {kCharacterColumns, kKeypadColumn + kKeypadColumns}) {
        grid->setColumnMinimumWidth(gap, 8);
    }

    for (int k = 0; k < kCharacterKeyCount; ++k) {
        QPushButton* key = MakeKey(QStringLiteral("Key_%1").arg(k), layers_.normal[k]);
        FitCaption(key, {layers_.normal[k], layers_.shifted[k]});
        connect(key, &QPushButton::clicked, this, [this, k] { emit keyClicked(k); });
        keys_ << key;
    }
    const auto& rows = KeyRows();
    for (int r = 0; r < static_cast<int>(rows.size()); ++r) {
        for (int c = 0; c < static_cast<int>(rows[r].size()); ++c) {
            const int key = rows[r][c];
            grid->addWidget(keys_[key], r, c, 1, key == kSpaceKey ? kSpaceSpan : 1);
        }
    }

    const QStringList& tenCaptions = TenKeyCaptions();
    for (int k = 0; k < tenCaptions.size(); ++k) {
        QPushButton* key = MakeKey(QStringLiteral("TenKey_%1").arg(k), tenCaptions[k]);
        FitCaption(key, {tenCaptions[k]});
        connect(key, &QPushButton::clicked, this, [this, k] { emit tenKeyClicked(k); });
        grid->addWidget(key, k / kKeypadColumns, kKeypadColumn + k % kKeypadColumns);
        tenKeys_ << key;
    }
    auto* hint = new QLabel(QStringLiteral("ESC でキーボードを隠します"));
    hint->setObjectName(QStringLiteral("KeyboardHint"));
    hint->setForegroundRole(QPalette::PlaceholderText);
    hint->setAlignment(Qt::AlignCenter);
    grid->addWidget(hint, static_cast<int>(rows.size()) - 1, kKeypadColumn, 1, kKeypadColumns);

    const QStringList& controlCaptions = ControlKeyCaptions();
    for (int k = 0; k < controlCaptions.size(); ++k) {
        QPushButton* key = MakeKey(QStringLiteral("Ctlkey_%1").arg(k), controlCaptions[k]);
        FitCaption(key, {controlCaptions[k]});
        connect(key, &QPushButton::clicked, this, [this, k] { emit controlKeyClicked(k); });
        const ControlKey role = ParseControlKey(controlCaptions[k]);
        key->setCheckable(role == ControlKey::Caps || role == ControlKey::Select);
        if (role == ControlKey::Escape) {
            key->setToolTip(QStringLiteral("キーボードを隠します（実行中はプログラムを止めます）"));
        }
        controlKeys_ << key;
    }
    for (const ControlPlace& place : kControlPlaces) {
        const auto k = controlCaptions.indexOf(QString::fromUtf16(place.caption));
        grid->addWidget(controlKeys_[k], place.row, kControlColumn + place.column, 1, place.span);
    }
}

QPushButton* OnScreenKeyboard::MakeKey(const QString& name, const QString& caption) {
    auto* key = new QPushButton(Shown(caption), this);
    key->setObjectName(name);
    key->setFocusPolicy(Qt::NoFocus);  // the active text box keeps the caret
    key->setAutoDefault(false);
    key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return key;
}

// Narrow keys, but never narrower than the longest caption they show.
void OnScreenKeyboard::FitCaption(QPushButton* key, const QStringList& captions) {
    int widest = 0;
    for (const QString& caption : captions) {
        widest = std::max(widest, key->fontMetrics().horizontalAdvance(caption));
    }
    key->setMinimumWidth(std::max(kNarrowestKey, widest + kCaptionPadding));
}

void OnScreenKeyboard::ToggleCaps() {
    shifted_ = !shifted_;
    ApplyLayer();
}

const KeyCaptions& OnScreenKeyboard::Layer() const {
    return shifted_ ? layers_.shifted : layers_.normal;
}

void OnScreenKeyboard::ApplyLayer() {
    for (int k = 0; k < kCharacterKeyCount; ++k)
        keys_[k]->setText(Shown(Layer()[k]));
    CheckControlKey(ControlKey::Caps, shifted_);
}

void OnScreenKeyboard::CheckControlKey(ControlKey role, bool on) {
    const QStringList& captions = ControlKeyCaptions();
    for (int k = 0; k < captions.size(); ++k) {
        if (ParseControlKey(captions[k]) == role) controlKeys_[k]->setChecked(on);
    }
}

void OnScreenKeyboard::ShowSelectionMode(bool on) {
    CheckControlKey(ControlKey::Select, on);
}

QString OnScreenKeyboard::KeyCaption(int index) const {
    return Layer()[index];
}
QString OnScreenKeyboard::TenKeyCaption(int index) const {
    return TenKeyCaptions()[index];
}
QString OnScreenKeyboard::ControlKeyCaption(int index) const {
    return ControlKeyCaptions()[index];
}

}  // namespace lapdesk
