// The program editor: a plain text editor with line numbers, the language's
// words highlighted, and a mark on the line of the last analysis or run
// error.
#pragma once

#include <QPlainTextEdit>

namespace lapdesk {

class CodeEditor : public QPlainTextEdit {
    Q_OBJECT
  public:
    explicit CodeEditor(QWidget* parent = nullptr);

    // Marks a line (0-based) as the failing one; -1 removes the mark. Any
    // edit removes it too.
    void MarkErrorLine(int line);
    int errorLine() const { return errorLine_; }

    int LineNumberAreaWidth() const;
    void PaintLineNumbers(QPaintEvent* event);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void UpdateLineNumberArea(const QRect& rect, int dy);
    void UpdateErrorSelection();

    QWidget* lineNumberArea_;
    int errorLine_ = -1;
};

}  // namespace lapdesk
