// A titled frame that floats over its parent and follows the left mouse
// button when dragged by its border or title, staying inside the parent.
#pragma once

#include <QGroupBox>
#include <QPoint>

namespace lapdesk {

class DraggableFrame : public QGroupBox {
    Q_OBJECT
  public:
    explicit DraggableFrame(const QString& title, QWidget* parent = nullptr);

    // Moves the frame to the point, kept inside the parent.
    void MoveWithin(QPoint topLeft);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QPoint grabbedAt_;
    bool dragging_ = false;
};

}  // namespace lapdesk
