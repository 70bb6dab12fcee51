#include "transform/window/plot/plot_image.h"

#include <QFileInfo>
#include <QSvgGenerator>
#include <algorithm>
#include <limits>

#include "transform/accurate/dehoog_inversion.h"

#include "transform/window/plot/scrn_plot.h"
#include "values/number_text.h"

namespace lapdesk {

namespace {

QString Title(const TransformDriver& driver) {
    const Conditions& c = driver.GetConditions();
    return QStringLiteral("f(t)    N = %1,  T = %2,  γ0 = %3")
        .arg(QString::number(c.N), QString::fromStdString(DoubleToText(c.T)),
             QString::fromStdString(DoubleToText(c.Gamma0)));
}

bool SaveSvg(ScrnPlot& plot, const QString& path, QSize size) {
    QSvgGenerator svg;
    svg.setFileName(path);
    svg.setSize(size);
    svg.setViewBox(QRect(QPoint(0, 0), size));
    svg.setTitle(QStringLiteral("f(t)"));
    QCPPainter painter;
    if (!painter.begin(&svg)) return false;
    plot.toPainter(&painter, size.width(), size.height());
    return painter.end();
}

// The accurate curve (broken where a point is not vouched for) and its
// flagged points; the t axis logarithmic when the times span two decades.
void AddAccurate(ScrnPlot& plot, const AccurateResult& accurate) {
    QVector<double> t, y, flaggedT, flaggedY;
    double first = std::numeric_limits<double>::infinity(), last = 0.0;
    double low = first, high = -first;
    for (const AccuratePoint& p : accurate.points) {
        const bool vouched = p.state == PointState::Converged;
        t << p.t;
        y << (vouched ? p.value : std::numeric_limits<double>::quiet_NaN());
        first = std::min(first, p.t);
        last = std::max(last, p.t);
        if (p.state == PointState::NotApplicable) continue;
        low = std::min(low, p.value);
        high = std::max(high, p.value);
        if (vouched) continue;
        flaggedT << p.t;
        flaggedY << p.value;
    }
    auto* curve = new QCPCurve(plot.xAxis, plot.yAxis);
    curve->setName(QStringLiteral("高精度"));
    curve->setData(t, y);
    curve->setPen(QPen(QColor(0x7b, 0x2c, 0xbf), 1.5));
    if (!flaggedT.isEmpty()) {
        auto* flagged = new QCPCurve(plot.xAxis, plot.yAxis);
        flagged->setName(QStringLiteral("未保証の点"));
        flagged->setData(flaggedT, flaggedY);
        flagged->setLineStyle(QCPCurve::lsNone);
        flagged->setScatterStyle(
            QCPScatterStyle(QCPScatterStyle::ssCross, QColor(0xd6, 0x1f, 0x1f), 6));
    }
    if (first > 0 && last >= 100 * first && low <= high) {
        const double margin = 0.05 * std::max(high - low, 1e-12);
        plot.ShowLogTime(first, last, low - margin, high + margin, false);
    }
}

}  // namespace

QString SavePlotImage(const TransformDriver& driver, const QString& path, QSize size,
                      const AccurateResult* accurate) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix != QStringLiteral("png") && suffix != QStringLiteral("svg")) {
        return QStringLiteral("the plot file must end in .png or .svg: ") + path;
    }
    ScrnPlot plot;
    plot.resize(size);
    plot.plotLayout()->insertRow(0);
    plot.plotLayout()->addElement(0, 0, new QCPTextElement(&plot, Title(driver)));
    plot.ShowLegend(true);
    plot.Draw(ResultContent(driver));
    if (accurate != nullptr) AddAccurate(plot, *accurate);
    const bool saved = suffix == QStringLiteral("png")
                           ? plot.savePng(path, size.width(), size.height())
                           : SaveSvg(plot, path, size);
    return saved ? QString() : QStringLiteral("cannot write the plot file ") + path;
}

}  // namespace lapdesk
