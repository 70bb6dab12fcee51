// The calculator window's immediate line, history, message panel, modes,
// mouse gestures, on-screen keyboard and language options.
#include "calculator/frm_cpl_cal.h"

#include <algorithm>

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QRadioButton>
#include <QStatusBar>

#include "calculator/code_editor.h"
#include "calculator/elided_label.h"
#include "calculator/immediate_rules.h"
#include "calculator/memory_panel.h"
#include "calculator/on_screen_keyboard.h"
#include "values/number_text.h"

namespace lapdesk {

// ButtonEnter: evaluate the immediate line, show the value, record it.
void FrmCplCal::ButtonEnter_Click() {
    SetKaiText(QString());
    label5_->hide();
    statusBar()->clearMessage();  // news of an earlier run or file is old now
    ProcessEvents();
    const ImmediateResult result =
        interpreter_.ImmediateLine(imidateTextBox_->text().trimmed().toStdString());
    immediateOk_ = result.ok;
    kaiFromProgram_ = false;
    historyRow_ = -1;
    if (result.ok) {
        Complex value = result.value;
        SetKaiText(QString::fromStdString(ComplexToText(value, RoundedDisplay())));
    } else {
        SetKaiText(QStringLiteral("Error"));
        // Why, in the interpreter's words, where the eye goes next.
        statusBar()->showMessage(QString::fromStdString(result.reason));
    }
    const QString entry = HistoryEntry(imidateTextBox_->text(), kai_->FullText());
    histryList_->insertItem(0, entry);
    histryList_->item(0)->setToolTip(entry);  // a long line, read whole
    histryList_->setCurrentRow(0);
    if (memory_->isVisible()) memory_->CommandReShowMemorys_Click();
    // The next line is typed where this one was, whether it came by Enter
    // or by the "=" button, and whatever the memory display did.
    imidateTextBox_->setFocus();
}

// Up recalls the next older line of the history into the immediate line,
// Down the next newer one, and past the newest an empty line.
bool FrmCplCal::HistoryKey(int key) {
    if ((key != Qt::Key_Up && key != Qt::Key_Down) || histryList_->count() == 0) return false;
    const int row =
        key == Qt::Key_Up ? std::min(historyRow_ + 1, histryList_->count() - 1) : historyRow_ - 1;
    historyRow_ = std::max(row, -1);
    if (historyRow_ < 0) {
        imidateTextBox_->clear();
        histryList_->clearSelection();
        return true;
    }
    histryList_->setCurrentRow(historyRow_);
    imidateTextBox_->setText(RecallFromHistory(histryList_->item(historyRow_)->text()));
    return true;
}

// Shift alone: smaller; Ctrl alone: recall the entry; otherwise larger.
void FrmCplCal::HistryList_DblClick() {
    if (mouseShift_ == kCtrlOnly) {
        if (const QListWidgetItem* item = histryList_->currentItem()) {
            imidateTextBox_->setText(RecallFromHistory(item->text()));
        }
        return;
    }
    ZoomFont(histryList_);
}

void FrmCplCal::ImidateTextBox_DblClick() {
    ZoomFont(imidateTextBox_);
}
void FrmCplCal::kai_Click() {
    ZoomFont(kai_);
}
void FrmCplCal::ProgramText_DblClick() {
    ZoomFont(programText_);
}

void FrmCplCal::ZoomFont(QWidget* widget) {
    QFont font = widget->font();
    font.setPointSize(ZoomedPointSize(font.pointSize(), mouseShiftOnly_));
    widget->setFont(font);
}

void FrmCplCal::Errmessage(const std::string& message) {
    ShowMessage(QString::fromStdString(message));
}

// A program's error names its statement and marks the statement's line; an
// abnormal end gets the place it happened appended.
void FrmCplCal::ShowProgramError(const ProgramError& error) {
    QString text = QString::fromStdString(MessageText(error));
    if (error.kind == ProgramErrorKind::AbnormalEnd && error.place.Known()) {
        text += QStringLiteral("\r\n") + QString::fromStdString(PlaceName(error.place));
        if (!error.place.text.empty()) {
            text += QStringLiteral(": ") + QString::fromStdString(error.place.text);
        }
    }
    MarkErrorLine(error.place);
    ShowMessage(text);
}

// Shows the message and blocks the caller until it is double-clicked away;
// the program buttons and the File menu wait with it.
void FrmCplCal::ShowMessage(QString text) {
    ShowKai();
    if (running_) ShowRunningPlace();  // the place the message speaks of
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    messageBox_->setText(text);
    messageBase_->show();
    messageBase_->raise();
    // The message can only be dismissed where it can be seen: in front,
    // also when the run was started from the transform window.
    if (!isVisible()) show();
    raise();
    activateWindow();
    HoldInputForMessage(true);
    emit messageShown(text);
    Waite();
    HoldInputForMessage(false);
}

// While a message waits, keys go to the message panel, not into the
// program behind it; the program text stays readable but not editable.
void FrmCplCal::HoldInputForMessage(bool hold) {
    messageWaiting_ = hold;
    UpdateEnabled();
    programText_->setReadOnly(hold);
    if (hold) {
        if (QWidget* focused = QApplication::focusWidget(); focused != messageBase_) {
            focusBeforeMessage_ = focused;
        }
        messageBase_->setFocus();
    } else if (focusBeforeMessage_ != nullptr && !messageWaiting_) {
        focusBeforeMessage_->setFocus();
        focusBeforeMessage_ = nullptr;
    }
}

// One nested event loop per waiting caller; a dismissal ends them all. A
// quitting application ends them too, so the loop is not entered again.
void FrmCplCal::Waite() {
    messageWaiting_ = true;
    QEventLoop loop;
    connect(this, &FrmCplCal::messageDismissed, &loop, &QEventLoop::quit);
    loop.exec();
}

void FrmCplCal::MessageBox_DblClick() {
    messageBase_->hide();
    messageWaiting_ = false;
    emit messageDismissed();
}

void FrmCplCal::closeEvent(QCloseEvent* event) {
    // A closing window lets a waiting message and a running program go.
    stopRequested_ = true;
    if (messageWaiting_) MessageBox_DblClick();
    event->accept();
}

// What a program run left in kai belongs to program mode.
void FrmCplCal::OptionNomal_Click() {
    programMode_ = false;
    if (kaiFromProgram_) {
        SetKaiText(QString());
        kaiFromProgram_ = false;
    }
    histryList_->show();
    programFrame_->hide();
    // The list's own visibility: its frame may already be hidden.
    if (!programList_->isHidden()) MenueExeList_Click();
    menueExeList_->setEnabled(false);
    UpdateEnabled();
    imidateTextBox_->setFocus();
}

void FrmCplCal::OptionProgram_Click() {
    programMode_ = true;
    keyboard_->hide();
    histryList_->hide();
    programFrame_->show();
    if (!programList_->isHidden()) MenueExeList_Click();
    menueExeList_->setEnabled(true);
    UpdateEnabled();
    if (isVisible()) programText_->setFocus();
}

// The program text takes the focus even when program mode was already on.
void FrmCplCal::ShowProgramMode() {
    optionProgram_->setChecked(true);
    if (isVisible()) programText_->setFocus();
}

// The Esc key and the keyboard's "ESC" stop a running program; otherwise
// they put the keyboard away.
void FrmCplCal::Escape() {
    if (running_) {
        ButtonStop_Click();
    } else {
        keyboard_->hide();
    }
}

void FrmCplCal::CommandKeyBoard_Click() {
    keyboard_->setVisible(keyboard_->isHidden());
}

void FrmCplCal::SetActiveBox(bool program) {
    activeBox_ = program ? ActiveTextBox(static_cast<QPlainTextEdit*>(programText_))
                         : ActiveTextBox(imidateTextBox_);
    // Statement keywords belong in programs only.
    for (QAction* entry : menueCtWord_->actions()) {
        entry->setEnabled(program);
    }
}

// Records the mouse state of each gesture and dispatches the double-clicks
// and clicks the window reacts to.
bool FrmCplCal::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::KeyPress && watched == imidateTextBox_) {
        return HistoryKey(static_cast<QKeyEvent*>(event)->key());
    }
    if (type == QEvent::FocusIn) {
        if (watched == imidateTextBox_ || watched == programText_) {
            SetActiveBox(watched == programText_);
        }
        return false;
    }
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonDblClick &&
        type != QEvent::MouseButtonRelease) {
        return false;
    }
    if (watched == messageBase_ || watched == messageBox_) {
        if (type == QEvent::MouseButtonDblClick) MessageBox_DblClick();
        return type == QEvent::MouseButtonDblClick;
    }
    const auto* mouse = static_cast<QMouseEvent*>(event);
    if (type != QEvent::MouseButtonRelease) {
        mouseShift_ = ShiftState(mouse->modifiers());
        mouseShiftOnly_ = mouseShift_ == kShiftOnly;
        pressedAt_ = mouse->position().toPoint();
    }
    if (type == QEvent::MouseButtonRelease) {
        // A drag over kai selects its text; only a click zooms.
        const QPoint moved = mouse->position().toPoint() - pressedAt_;
        if (watched == kai_ && moved.manhattanLength() < QApplication::startDragDistance()) {
            kai_Click();
        }
    } else if (type == QEvent::MouseButtonDblClick) {
        if (watched == histryList_->viewport()) HistryList_DblClick();
        if (watched == imidateTextBox_) ImidateTextBox_DblClick();
        if (watched == programText_->viewport()) ProgramText_DblClick();
    }
    return false;
}

void FrmCplCal::Key_Click(int index) {
    InsertAtCaret(KeyInsertText(keyboard_->KeyCaption(index)));
}

void FrmCplCal::TenKey_Click(int index) {
    InsertAtCaret(KeyInsertText(keyboard_->TenKeyCaption(index)));
}

void FrmCplCal::InsertAtCaret(const QString& text) {
    activeBox_.InsertAtCaret(text);
}

void FrmCplCal::InsertWord(const QString& text, int back) {
    activeBox_.InsertAtCaret(text, back);
}

void FrmCplCal::Ctlkey_Click(int index) {
    switch (ParseControlKey(keyboard_->ControlKeyCaption(index))) {
        case ControlKey::Enter:
            if (activeBox_.multiLine()) {
                activeBox_.InsertLineBreak();
            } else {
                ButtonEnter_Click();
            }
            break;
        case ControlKey::Clear:
            activeBox_.Clear();
            break;
        case ControlKey::Copy:
            activeBox_.Copy();
            break;
        case ControlKey::Paste:
            activeBox_.Paste();
            break;
        case ControlKey::BackSpace:
            activeBox_.DeleteBefore();
            break;
        case ControlKey::Delete:
            activeBox_.DeleteAfter();
            break;
        case ControlKey::Cut:
            activeBox_.Cut();
            break;
        case ControlKey::Left:
            activeBox_.MoveCaret(-1, selectionMode_);
            break;
        case ControlKey::Right:
            activeBox_.MoveCaret(1, selectionMode_);
            break;
        case ControlKey::Select:
            selectionMode_ = !selectionMode_;
            keyboard_->ShowSelectionMode(selectionMode_);
            break;
        case ControlKey::Caps:
            keyboard_->ToggleCaps();
            break;
        case ControlKey::Equals:
            activeBox_.InsertAtCaret(QStringLiteral("="));
            break;
        case ControlKey::Escape:
            Escape();
            break;
        case ControlKey::None:
            break;
    }
    activeBox_.Activate();
}

void FrmCplCal::MenuCaps_Click() {
    const QString question =
        (menuCaps_->isChecked() ? QStringLiteral("これ以後変数の大文字小文字を区別しません")
                                : QStringLiteral("これ以後変数の大文字小文字を区別します")) +
        QStringLiteral("\r\n現在の変数を全て消去しますか？");
    const auto answer = dialogs_->Ask(this, windowTitle(), question,
                                      QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    if (answer != QMessageBox::Yes && answer != QMessageBox::No) return;
    menuCaps_->setChecked(!menuCaps_->isChecked());
    interpreter_.SetCaseSensitive(menuCaps_->isChecked());
    if (answer == QMessageBox::Yes) interpreter_.EraseGlobals();
}

void FrmCplCal::MenueClearGlVar_Click() {
    const QString question =
        menueClearGlVar_->isChecked()
            ? QStringLiteral(
                  "これ以後，大域変数を消去せずに，プログラムを解析します．\r\n"
                  "そのために実行エラーが生ずる事があります！！")
            : QStringLiteral("これ以後，大域変数を一端消去してから，プログラムを解析します．\r\n");
    const auto answer =
        dialogs_->Ask(this, windowTitle(), question, QMessageBox::Yes | QMessageBox::No);
    if (answer == QMessageBox::Yes) menueClearGlVar_->setChecked(!menueClearGlVar_->isChecked());
}

}  // namespace lapdesk
