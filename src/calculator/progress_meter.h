// The progress meter of a program run: twenty-one blue tick boxes across the
// full scale and a bar that grows over them as the driver reports progress.
#pragma once

#include <QWidget>
#include <vector>

namespace lapdesk {

// Left edges of the tick boxes for a scale of the given width: 0, w/20, ..., w.
std::vector<double> MeterTicks(double width);

class ProgressMeter : public QWidget {
    Q_OBJECT
  public:
    explicit ProgressMeter(QWidget* parent = nullptr);

    void Reset(double scale);
    // Extends the bar to value; values of 0 or less (or not a number) draw
    // nothing.
    void Advance(double value);

    double scale() const { return scale_; }
    double bar() const { return bar_; }
    const std::vector<double>& ticks() const { return ticks_; }

    QSize sizeHint() const override { return {200, 14}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double scale_ = 0.0;
    double bar_ = 0.0;
    std::vector<double> ticks_;
};

}  // namespace lapdesk
