// A one-line label that keeps its width whatever it shows: a text too long
// for it is cut with "…" and shown whole in the tooltip. The calculator's
// result label kai is one, so that a long value does not widen the window.
#pragma once

#include <QLabel>
#include <QString>

namespace lapdesk {

class ElidedLabel : public QLabel {
    Q_OBJECT
  public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    // The text as given; QLabel::text() is what fits.
    void SetFullText(const QString& text);
    const QString& FullText() const { return full_; }
    // The tooltip shown while the whole text fits.
    void SetHint(const QString& hint);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Elide();

    QString full_;
    QString hint_;
};

}  // namespace lapdesk
