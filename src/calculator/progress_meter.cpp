#include "calculator/progress_meter.h"

#include <QPainter>
#include <algorithm>

namespace lapdesk {

namespace {

constexpr int kTickIntervals = 20;

}  // namespace

std::vector<double> MeterTicks(double width) {
    std::vector<double> ticks;
    if (!(width > 0.0)) return ticks;
    const double step = width / kTickIntervals;
    for (int i = 0; i <= kTickIntervals; ++i)
        ticks.push_back(i * step);
    return ticks;
}

ProgressMeter::ProgressMeter(QWidget* parent) : QWidget(parent) {
    setForegroundRole(QPalette::Highlight);
    setMinimumHeight(10);
}

void ProgressMeter::Reset(double scale) {
    scale_ = scale;
    bar_ = 0.0;
    ticks_ = MeterTicks(scale);
    update();
}

void ProgressMeter::Advance(double value) {
    if (!(value > 0.0)) return;
    bar_ = std::max(bar_, value);
    update();
}

void ProgressMeter::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    if (!(scale_ > 0.0)) return;
    // x runs from 0 to just past the last tick box, so that it shows whole.
    const double step = scale_ / kTickIntervals;
    const double sx = width() / (scale_ + 0.7 * step);
    const double h = height();
    for (double x : ticks_) {
        painter.fillRect(QRectF(x * sx, h * 0.2, 0.7 * step * sx, h * 0.6), QColor(0, 0, 255));
    }
    painter.fillRect(QRectF(0, 0, std::min(bar_, scale_) * sx, h),
                     palette().color(foregroundRole()));
}

}  // namespace lapdesk
