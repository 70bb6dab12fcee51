#include "calculator/on_screen_keyboard.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>

namespace lapdesk {

namespace {

// Character keys by row, in the order of a typewriter; -1 leaves a gap.
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

constexpr int kKeypadColumns = 4;

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

    auto* characters = new QGridLayout;
    characters->setSpacing(3);
    for (int k = 0; k < kCharacterKeyCount; ++k) {
        QPushButton* key = MakeKey(QStringLiteral("Key_%1").arg(k), layers_.normal[k]);
        connect(key, &QPushButton::clicked, this, [this, k] { emit keyClicked(k); });
        keys_ << key;
    }
    const auto& rows = KeyRows();
    for (int r = 0; r < static_cast<int>(rows.size()); ++r) {
        for (int c = 0; c < static_cast<int>(rows[r].size()); ++c) {
            const int key = rows[r][c];
            // The space bar spans the rest of the last row.
            const int span = key == 47 ? 8 : 1;
            characters->addWidget(keys_[key], r, c, 1, span);
        }
    }

    auto* keypad = new QGridLayout;
    keypad->setSpacing(3);
    const QStringList& tenCaptions = TenKeyCaptions();
    for (int k = 0; k < tenCaptions.size(); ++k) {
        QPushButton* key = MakeKey(QStringLiteral("TenKey_%1").arg(k), tenCaptions[k]);
        connect(key, &QPushButton::clicked, this, [this, k] { emit tenKeyClicked(k); });
        keypad->addWidget(key, k / kKeypadColumns, k % kKeypadColumns);
        tenKeys_ << key;
    }

    auto* controls = new QGridLayout;
    controls->setSpacing(3);
    const QStringList& controlCaptions = ControlKeyCaptions();
    for (int k = 0; k < controlCaptions.size(); ++k) {
        QPushButton* key = MakeKey(QStringLiteral("Ctlkey_%1").arg(k), controlCaptions[k]);
        connect(key, &QPushButton::clicked, this, [this, k] { emit controlKeyClicked(k); });
        const ControlKey role = ParseControlKey(controlCaptions[k]);
        key->setCheckable(role == ControlKey::Caps || role == ControlKey::Select);
        controls->addWidget(key, k / 2, k % 2);
        controlKeys_ << key;
    }

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addLayout(characters, 3);
    layout->addSpacing(8);
    layout->addLayout(keypad, 1);
    layout->addSpacing(8);
    layout->addLayout(controls, 1);
}

QPushButton* OnScreenKeyboard::MakeKey(const QString& name, const QString& caption) {
    auto* key = new QPushButton(Shown(caption), this);
    key->setObjectName(name);
    key->setFocusPolicy(Qt::NoFocus);  // the active text box keeps the caret
    key->setAutoDefault(false);
    key->setMinimumWidth(30);
    key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return key;
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
