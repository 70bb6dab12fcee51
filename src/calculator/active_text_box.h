// The text box that the on-screen keyboard and the vocabulary menus write
// into: the one-line immediate box or the multi-line program editor, edited
// through one set of operations.
#pragma once

#include <QString>

class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace lapdesk {

class ActiveTextBox {
  public:
    explicit ActiveTextBox(QLineEdit* line) : line_(line) {}
    explicit ActiveTextBox(QPlainTextEdit* editor) : editor_(editor) {}

    QWidget* widget() const;
    bool multiLine() const { return editor_ != nullptr; }
    QString text() const;
    // A read-only box (the program while an error message waits) takes no
    // edits: the editing operations below leave it as it is.
    bool editable() const;

    // Replaces the selection with s and puts the caret after it, then moves
    // the caret back by `back` characters; the box gets the focus again.
    void InsertAtCaret(const QString& s, int back = 0);
    // A line break: a new line in the editor.
    void InsertLineBreak();
    void Clear();
    // The selection to the clipboard, or the whole text when nothing is
    // selected.
    void Copy();
    void Cut();
    void Paste();
    // Delete the selection, else the character before (BS) or after (DEL)
    // the caret.
    void DeleteBefore();
    void DeleteAfter();
    // One character left (-1) or right (+1); with extend, the selection
    // grows or shrinks from its anchor instead of collapsing.
    void MoveCaret(int direction, bool extend);
    // Enables the box and gives it the focus.
    void Activate();

  private:
    QLineEdit* line_ = nullptr;
    QPlainTextEdit* editor_ = nullptr;
};

}  // namespace lapdesk
