#include "calculator/elided_label.h"

#include <QEvent>
#include <algorithm>

namespace lapdesk {

namespace {

// Room for a short value; the layout gives the label the column's width.
constexpr int kHintCharacters = 12;

}  // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ElidedLabel::SetFullText(const QString& text) {
    full_ = text;
    Elide();
}

void ElidedLabel::SetHint(const QString& hint) {
    hint_ = hint;
    Elide();
}

void ElidedLabel::Elide() {
    const int room = contentsRect().width() - 2 * margin() - 2 * indent();
    const QString shown = fontMetrics().elidedText(full_, Qt::ElideRight, std::max(room, 0));
    if (shown != text()) setText(shown);
    setToolTip(shown == full_ ? hint_ : full_ + QLatin1Char('\n') + hint_);
}

// One line of the present font, whatever the text; the width is the
// layout's.
QSize ElidedLabel::sizeHint() const {
    return {fontMetrics().averageCharWidth() * kHintCharacters, minimumSizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const {
    const QMargins frame = contentsMargins();
    return {fontMetrics().averageCharWidth() * 4 + frame.left() + frame.right(),
            fontMetrics().height() + frame.top() + frame.bottom() + 2 * margin() + 8};
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    Elide();
}

void ElidedLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        updateGeometry();
        Elide();
    }
}

}  // namespace lapdesk
