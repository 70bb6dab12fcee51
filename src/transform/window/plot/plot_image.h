// The transform's result drawn into an image file by the plot box's own
// drawing, without a window: PNG or SVG, chosen by the file's suffix.
#pragma once

#include <QSize>
#include <QString>

namespace lapdesk {

class TransformDriver;
struct AccurateResult;

// Draws f(t) with its legend and a title naming N, T and gamma0, and, when
// given, the accurate result over it (its flagged points as crosses; over
// two decades or more of t, on a log t axis). Needs a QApplication (an
// offscreen one will do). Returns "" or why it failed.
QString SavePlotImage(const TransformDriver& driver, const QString& path,
                      QSize size = QSize(960, 600), const AccurateResult* accurate = nullptr);

}  // namespace lapdesk
