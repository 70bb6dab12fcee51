#include "calculator/code_editor.h"

#include <QPaintEvent>
#include <QPainter>
#include <QTextBlock>

#include "calculator/program_highlighter.h"

namespace lapdesk {

namespace {

const QColor kErrorBackground(255, 220, 220);
const QColor kErrorNumber(200, 0, 0);

class LineNumberArea : public QWidget {
  public:
    explicit LineNumberArea(CodeEditor* editor) : QWidget(editor), editor_(editor) {}
    QSize sizeHint() const override { return {editor_->LineNumberAreaWidth(), 0}; }

  protected:
    void paintEvent(QPaintEvent* event) override { editor_->PaintLineNumbers(event); }

  private:
    CodeEditor* editor_;
};

}  // namespace

CodeEditor::CodeEditor(QWidget* parent)
    : QPlainTextEdit(parent), lineNumberArea_(new LineNumberArea(this)) {
    new ProgramHighlighter(document());
    setLineWrapMode(QPlainTextEdit::NoWrap);
    connect(this, &QPlainTextEdit::blockCountChanged, this,
            [this] { setViewportMargins(LineNumberAreaWidth(), 0, 0, 0); });
    connect(this, &QPlainTextEdit::updateRequest, this, &CodeEditor::UpdateLineNumberArea);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (errorLine_ >= 0) MarkErrorLine(-1);
    });
    setViewportMargins(LineNumberAreaWidth(), 0, 0, 0);
}

int CodeEditor::LineNumberAreaWidth() const {
    int digits = 1;
    for (int count = std::max(1, blockCount()); count >= 10; count /= 10)
        ++digits;
    return 8 + fontMetrics().horizontalAdvance(QLatin1Char('9')) * std::max(digits, 2);
}

void CodeEditor::MarkErrorLine(int line) {
    errorLine_ = line;
    UpdateErrorSelection();
    lineNumberArea_->update();
    if (line < 0) return;
    const QTextBlock block = document()->findBlockByNumber(line);
    if (!block.isValid()) return;
    QTextCursor cursor(block);
    setTextCursor(cursor);
    centerCursor();
}

void CodeEditor::UpdateErrorSelection() {
    QList<QTextEdit::ExtraSelection> selections;
    const QTextBlock block = document()->findBlockByNumber(errorLine_);
    if (errorLine_ >= 0 && block.isValid()) {
        QTextEdit::ExtraSelection selection;
        selection.format.setBackground(kErrorBackground);
        selection.format.setProperty(QTextFormat::FullWidthSelection, true);
        selection.cursor = QTextCursor(block);
        selections << selection;
    }
    setExtraSelections(selections);
}

void CodeEditor::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    const QRect area = contentsRect();
    lineNumberArea_->setGeometry(
        QRect(area.left(), area.top(), LineNumberAreaWidth(), area.height()));
}

void CodeEditor::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    // A zoomed font needs wider line numbers.
    if (event->type() == QEvent::FontChange) setViewportMargins(LineNumberAreaWidth(), 0, 0, 0);
}

void CodeEditor::UpdateLineNumberArea(const QRect& rect, int dy) {
    if (dy != 0) {
        lineNumberArea_->scroll(0, dy);
    } else {
        lineNumberArea_->update(0, rect.y(), lineNumberArea_->width(), rect.height());
    }
}

void CodeEditor::PaintLineNumbers(QPaintEvent* event) {
    QPainter painter(lineNumberArea_);
    painter.fillRect(event->rect(), palette().color(QPalette::AlternateBase));
    QTextBlock block = firstVisibleBlock();
    int top = qRound(blockBoundingGeometry(block).translated(contentOffset()).top());
    const int right = lineNumberArea_->width() - 4;
    while (block.isValid() && top <= event->rect().bottom()) {
        const int bottom = top + qRound(blockBoundingRect(block).height());
        if (block.isVisible() && bottom >= event->rect().top()) {
            const bool failing = block.blockNumber() == errorLine_;
            painter.setPen(failing ? kErrorNumber : palette().color(QPalette::PlaceholderText));
            painter.drawText(0, top, right, bottom - top, Qt::AlignRight | Qt::AlignVCenter,
                             QString::number(block.blockNumber() + 1));
        }
        block = block.next();
        top = bottom;
    }
}

}  // namespace lapdesk
