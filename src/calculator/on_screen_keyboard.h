// The keyboard drawn on the calculator window (FrameKeyBoard): 51 character
// keys with a normal and a shifted label layer, a numeric keypad, and the
// control keys. It only reports which key was pressed; the window edits the
// active text box.
#pragma once

#include <QFrame>
#include <QList>

#include "calculator/keyboard_layers.h"

class QPushButton;

namespace lapdesk {

class OnScreenKeyboard : public QFrame {
    Q_OBJECT
  public:
    explicit OnScreenKeyboard(QWidget* parent = nullptr);

    // Switches the character keys between the normal and the shifted layer.
    void ToggleCaps();

    QString KeyCaption(int index) const;
    QString TenKeyCaption(int index) const;
    QString ControlKeyCaption(int index) const;

    // Shows the selection mode on the "SEL" key.
    void ShowSelectionMode(bool on);

  signals:
    void keyClicked(int index);
    void tenKeyClicked(int index);
    void controlKeyClicked(int index);

  private:
    static constexpr int kNarrowestKey = 30;
    static constexpr int kCaptionPadding = 14;  // the button's frame and margins

    QPushButton* MakeKey(const QString& name, const QString& caption);
    static void FitCaption(QPushButton* key, const QStringList& captions);
    const KeyCaptions& Layer() const;
    void ApplyLayer();
    void CheckControlKey(ControlKey role, bool on);

    KeyLayers layers_;
    bool shifted_ = false;
    QList<QPushButton*> keys_;
    QList<QPushButton*> tenKeys_;
    QList<QPushButton*> controlKeys_;
};

}  // namespace lapdesk
