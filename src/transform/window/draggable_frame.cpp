#include "transform/window/draggable_frame.h"

#include <QMouseEvent>
#include <algorithm>

namespace lapdesk {

DraggableFrame::DraggableFrame(const QString& title, QWidget* parent) : QGroupBox(title, parent) {
    setCursor(Qt::SizeAllCursor);
    setAutoFillBackground(true);
    if (parent != nullptr) parent->installEventFilter(this);
}

void DraggableFrame::SetPreferredSize(QSize size) {
    preferred_ = size;
    MoveWithin(pos());
}

void DraggableFrame::MoveWithin(QPoint topLeft) {
    const QWidget* area = parentWidget();
    if (area == nullptr) {
        move(topLeft);
        return;
    }
    if (preferred_.isValid()) {
        resize(preferred_.boundedTo(area->size()).expandedTo(minimumSizeHint()));
    }
    const int x = std::clamp(topLeft.x(), 0, std::max(0, area->width() - width()));
    const int y = std::clamp(topLeft.y(), 0, std::max(0, area->height() - height()));
    move(x, y);
}

bool DraggableFrame::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize) MoveWithin(pos());
    return QGroupBox::eventFilter(watched, event);
}

void DraggableFrame::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        QGroupBox::mousePressEvent(event);
        return;
    }
    dragging_ = true;
    grabbedAt_ = event->position().toPoint();
    raise();
    event->accept();
}

void DraggableFrame::mouseMoveEvent(QMouseEvent* event) {
    if (!dragging_) {
        QGroupBox::mouseMoveEvent(event);
        return;
    }
    MoveWithin(pos() + event->position().toPoint() - grabbedAt_);
    event->accept();
}

void DraggableFrame::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) dragging_ = false;
    QGroupBox::mouseReleaseEvent(event);
}

}  // namespace lapdesk
