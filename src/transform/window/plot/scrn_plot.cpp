#include "transform/window/plot/scrn_plot.h"

#include <algorithm>

namespace lapdesk {

namespace {

// Points drawn between two repaints while events may run.
int ChunkSize(std::size_t points) {
    return std::max(64, static_cast<int>(points / 16));
}

QPen CurvePen(const QColor& colour, double width) {
    QPen pen(colour);
    pen.setWidthF(width);
    return pen;
}

void StyleAxis(QCPAxis* axis) {
    const QColor ink(0x33, 0x33, 0x33);
    axis->setBasePen(QPen(ink));
    axis->setTickPen(QPen(ink));
    axis->setSubTickPen(QPen(ink));
    axis->setTickLabelColor(ink);
    axis->setLabelColor(ink);
    axis->grid()->setPen(QPen(QColor(0xd4, 0xd4, 0xd4), 0, Qt::SolidLine));
    axis->grid()->setSubGridPen(QPen(QColor(0xec, 0xec, 0xec), 0, Qt::DotLine));
    axis->grid()->setSubGridVisible(true);
    axis->grid()->setZeroLinePen(QPen(QColor(0x80, 0x80, 0x80), 0, Qt::SolidLine));
}

}  // namespace

ScrnPlot::ScrnPlot(QWidget* parent) : QCustomPlot(parent) {
    setObjectName(QStringLiteral("Scrn"));
    setBackground(PlotColours::Background());
    axisRect()->setBackground(Qt::white);
    StyleAxis(xAxis);
    StyleAxis(yAxis);
    setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    setMouseTracking(true);
    // A line wider than one pixel drawn as one polyline costs the raster
    // engine its joins: a 4096-point result took about half of each
    // repaint. Drawn as segments (their square ends overlap where a join
    // would be) it takes half as long. Vector output (SVG) still gets the
    // polyline.
    setPlottingHint(QCP::phFastPolylines, true);
    legend->setVisible(false);
    legend->setBrush(QColor(255, 255, 255, 230));
    legend->setBorderPen(QPen(QColor(0xb0, 0xb0, 0xb0)));
    ClearScreen(5.0);
}

void ScrnPlot::ClearScreen(double tEnd) {
    Clear(tEnd);
    replot();
}

void ScrnPlot::Clear(double tEnd) {
    ++generation_;
    for (QCPAxis* axis : {xAxis, yAxis}) {
        if (axis->scaleType() == QCPAxis::stLinear) continue;
        axis->setScaleType(QCPAxis::stLinear);
        axis->setTicker(QSharedPointer<QCPAxisTicker>(new QCPAxisTicker));
    }
    clearPlottables();  // also the layers others add over a result
    clearItems();
    view_ = PlotView::None;
    SetAxes(EmptyContent(tEnd));
}

void ScrnPlot::SetAxes(const PlotContent& content) {
    xAxis->setRange(content.x.lower, content.x.upper);
    yAxis->setRange(content.y.lower, content.y.upper);
    const bool data = content.view == PlotView::Data;
    xAxis->setLabel(data ? QStringLiteral("標本番号 k") : QStringLiteral("t"));
    yAxis->setLabel(data ? QStringLiteral("F(sₖ)·wₖ·N/T") : QStringLiteral("f(t)"));
}

// The samples as points, the result as a line; a dashed mark where the
// reliable part of the record ends.
void ScrnPlot::AddCurves(const PlotContent& content) {
    if (content.view == PlotView::Data) {
        const QColor colours[] = {PlotColours::Real(), PlotColours::Imaginary()};
        const QString names[] = {QStringLiteral("データ実部"), QStringLiteral("データ虚部")};
        for (int i = 0; i < 2; ++i) {
            QCPGraph* graph = addGraph();
            graph->setName(names[i]);
            graph->setLineStyle(QCPGraph::lsNone);
            graph->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssDisc, colours[i], 4));
            graph->setPen(QPen(colours[i]));
        }
        return;
    }
    QCPGraph* graph = addGraph();
    graph->setName(QStringLiteral("結果"));
    graph->setPen(CurvePen(PlotColours::Result(), 2.0));
    auto* mark = new QCPItemStraightLine(this);
    mark->point1->setCoords(content.reliableUntil, 0.0);
    mark->point2->setCoords(content.reliableUntil, 1.0);
    mark->setPen(QPen(QColor(0x99, 0x99, 0x99), 1, Qt::DashLine));
    // What the mark means, at its foot on the reliable side: the fifth of
    // the box after it is too narrow for the text, and the result frame
    // starts out over the box's upper right.
    auto* note = new QCPItemText(this);
    note->setObjectName(QStringLiteral("ReliableMarkNote"));
    note->position->setTypeX(QCPItemPosition::ptPlotCoords);
    note->position->setTypeY(QCPItemPosition::ptAxisRectRatio);
    note->position->setCoords(content.reliableUntil, 1.0);
    note->setPositionAlignment(Qt::AlignRight | Qt::AlignBottom);
    note->setTextAlignment(Qt::AlignRight);
    note->setPadding(QMargins(4, 4, 4, 4));
    note->setColor(QColor(0x66, 0x66, 0x66));
    note->setText(QStringLiteral("0.8T: ここから先は誤差が大きく，→\n縦軸の目盛に含めません"));
}

bool ScrnPlot::Draw(const PlotContent& content, const DrawControl& control) {
    Clear(content.x.upper);  // shown with the first part of the new drawing
    const unsigned generation = generation_;
    view_ = content.view;
    SetAxes(content);
    AddCurves(content);
    const std::size_t points = content.curves.empty() ? 0 : content.curves.front().x.size();
    const int chunk = ChunkSize(points);
    for (std::size_t k = 0; k < points; ++k) {
        if (control.keepDrawing && !control.keepDrawing()) {
            replot();
            return false;
        }
        for (std::size_t c = 0; c < content.curves.size(); ++c) {
            graph(static_cast<int>(c))->addData(content.curves[c].x[k], content.curves[c].y[k]);
        }
        if (control.letEventsRun && (k + 1) % chunk == 0) {
            if (!control.repaintDue || control.repaintDue()) replot();
            control.letEventsRun();
            if (generation != generation_) return false;
        }
    }
    replot();
    return true;
}

void ScrnPlot::ShowLogTime(double from, double to, double fLow, double fHigh, bool logF) {
    xAxis->setScaleType(QCPAxis::stLogarithmic);
    xAxis->setTicker(QSharedPointer<QCPAxisTickerLog>(new QCPAxisTickerLog));
    xAxis->setRange(from, to);
    if (logF) {
        yAxis->setScaleType(QCPAxis::stLogarithmic);
        yAxis->setTicker(QSharedPointer<QCPAxisTickerLog>(new QCPAxisTickerLog));
        yAxis->setLabel(QStringLiteral("|f(t)|"));
    }
    yAxis->setRange(fLow, fHigh);
    replot();
}

int ScrnPlot::DrawnPoints() const {
    int points = 0;
    for (int i = 0; i < graphCount(); ++i) {
        points += graph(i)->dataCount();
    }
    return points;
}

void ScrnPlot::ShowLegend(bool shown) {
    legend->setVisible(shown);
}

}  // namespace lapdesk
