// A titled frame that floats over its parent and follows the left mouse
// button when dragged by its border or title, staying inside the parent:
// when the parent shrinks, the frame moves back in and, if need be, shrinks
// with it (to its preferred size again when the parent grows).
#pragma once

#include <QGroupBox>
#include <QPoint>

namespace lapdesk {

class DraggableFrame : public QGroupBox {
    Q_OBJECT
  public:
    explicit DraggableFrame(const QString& title, QWidget* parent = nullptr);

    // The size the frame has whenever the parent has room for it.
    void SetPreferredSize(QSize size);
    // Moves the frame to the point, kept inside the parent.
    void MoveWithin(QPoint topLeft);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QSize preferred_;
    QPoint grabbedAt_;
    bool dragging_ = false;
};

}  // namespace lapdesk
