// Scrn, the plot box of the transform window: draws a PlotContent with
// QCustomPlot (axes, grid, labels; wheel zoom and drag to pan). Drawing goes
// point by point so that a caller can let window events run between chunks
// and stop it half way; the same widget renders offscreen for image files.
#pragma once

#include <qcustomplot.h>
#include <QColor>
#include <functional>

#include "transform/window/plot/plot_model.h"

namespace lapdesk {

// The legend's colours.
struct PlotColours {
    static QColor Real() { return QColor(0x1f, 0x77, 0xb4); }
    static QColor Imaginary() { return QColor(0xd6, 0x61, 0x0a); }
    static QColor Result() { return QColor(0x0b, 0x6e, 0x2e); }
    static QColor Background() { return QColor(0xfb, 0xfb, 0xf8); }
};

class ScrnPlot : public QCustomPlot {
    Q_OBJECT
  public:
    // keepDrawing is asked before every point; letEventsRun is called
    // between chunks of points. Either may be empty.
    struct DrawControl {
        std::function<bool()> keepDrawing;
        std::function<void()> letEventsRun;
        // Whether the part drawn so far is to be shown before events run;
        // always, when not set.
        std::function<bool()> repaintDue;
    };

    explicit ScrnPlot(QWidget* parent = nullptr);

    // Removes the curves and shows the empty box for t from 0 to tEnd.
    void ClearScreen(double tEnd);

    // Replaces what the box shows; false when the drawing was stopped (by
    // keepDrawing, or by another drawing started meanwhile).
    bool Draw(const PlotContent& content, const DrawControl& control = {});

    PlotView view() const { return view_; }
    // Points drawn so far, over all curves.
    int DrawnPoints() const;
    // The names of the curves in the built-in legend, shown for image files.
    void ShowLegend(bool shown);
    // The result over t from `from` to `to` on a logarithmic axis, f on a
    // linear axis from fLow to fHigh or, with logF, a logarithmic one (only
    // positive values show). The next ClearScreen returns to linear axes.
    void ShowLogTime(double from, double to, double fLow, double fHigh, bool logF);

  private:
    // ClearScreen without showing it.
    void Clear(double tEnd);
    void SetAxes(const PlotContent& content);
    void AddCurves(const PlotContent& content);

    PlotView view_ = PlotView::None;
    // Counts drawings and clears, so a drawing interrupted by another one
    // notices that its curves are gone.
    unsigned generation_ = 0;
};

}  // namespace lapdesk
