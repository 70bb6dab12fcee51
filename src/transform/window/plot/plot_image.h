// The transform's result drawn into an image file by the plot box's own
// drawing, without a window: PNG or SVG, chosen by the file's suffix.
#pragma once

#include <QSize>
#include <QString>

namespace lapdesk {

class TransformDriver;

// Draws f(t) with its legend and a title naming N, T and gamma0. Needs a
// QApplication (an offscreen one will do). Returns "" or why it failed.
QString SavePlotImage(const TransformDriver& driver, const QString& path,
                      QSize size = QSize(960, 600));

}  // namespace lapdesk
