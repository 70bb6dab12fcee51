#include "calculator/active_text_box.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <algorithm>

namespace lapdesk {

QWidget* ActiveTextBox::widget() const {
    return line_ != nullptr ? static_cast<QWidget*>(line_) : editor_;
}

QString ActiveTextBox::text() const {
    return line_ != nullptr ? line_->text() : editor_->toPlainText();
}

bool ActiveTextBox::editable() const {
    return line_ != nullptr ? !line_->isReadOnly() : !editor_->isReadOnly();
}

void ActiveTextBox::InsertAtCaret(const QString& s, int back) {
    if (!editable()) return;
    if (line_ != nullptr) {
        line_->insert(s);
        line_->setCursorPosition(std::max(0, line_->cursorPosition() - back));
    } else {
        QTextCursor cursor = editor_->textCursor();
        cursor.insertText(s);
        cursor.movePosition(QTextCursor::Left, QTextCursor::MoveAnchor, back);
        editor_->setTextCursor(cursor);
    }
    Activate();
}

void ActiveTextBox::InsertLineBreak() {
    if (editor_ != nullptr) InsertAtCaret(QStringLiteral("\n"));
}

void ActiveTextBox::Clear() {
    if (!editable()) return;
    if (line_ != nullptr) {
        line_->clear();
    } else {
        // Through the cursor, so that the clearing can be undone.
        QTextCursor cursor = editor_->textCursor();
        cursor.select(QTextCursor::Document);
        cursor.removeSelectedText();
        editor_->setTextCursor(cursor);
    }
}

void ActiveTextBox::Copy() {
    const QString selected =
        line_ != nullptr ? line_->selectedText() : editor_->textCursor().selectedText();
    // The editor marks its line breaks in a selection as paragraph separators.
    QString copied = selected.isEmpty() ? text() : selected;
    copied.replace(QChar::ParagraphSeparator, '\n');
    QGuiApplication::clipboard()->setText(copied);
}

void ActiveTextBox::Cut() {
    if (!editable()) return;
    if (line_ != nullptr) {
        line_->cut();
    } else {
        editor_->cut();
    }
}

void ActiveTextBox::Paste() {
    InsertAtCaret(QGuiApplication::clipboard()->text());
}

void ActiveTextBox::DeleteBefore() {
    if (!editable()) return;
    if (line_ != nullptr) {
        line_->backspace();
    } else {
        QTextCursor cursor = editor_->textCursor();
        cursor.deletePreviousChar();
        editor_->setTextCursor(cursor);
    }
}

void ActiveTextBox::DeleteAfter() {
    if (!editable()) return;
    if (line_ != nullptr) {
        line_->del();
    } else {
        QTextCursor cursor = editor_->textCursor();
        cursor.deleteChar();
        editor_->setTextCursor(cursor);
    }
}

void ActiveTextBox::MoveCaret(int direction, bool extend) {
    if (line_ != nullptr) {
        if (direction < 0) {
            line_->cursorBackward(extend);
        } else {
            line_->cursorForward(extend);
        }
        return;
    }
    QTextCursor cursor = editor_->textCursor();
    cursor.movePosition(direction < 0 ? QTextCursor::Left : QTextCursor::Right,
                        extend ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor);
    editor_->setTextCursor(cursor);
}

void ActiveTextBox::Activate() {
    QWidget* box = widget();
    box->setEnabled(true);
    box->setFocus();
}

}  // namespace lapdesk
