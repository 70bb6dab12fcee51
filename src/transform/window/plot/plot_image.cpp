#include "transform/window/plot/plot_image.h"

#include <QFileInfo>
#include <QSvgGenerator>

#include "transform/window/plot/scrn_plot.h"

namespace lapdesk {

namespace {

QString Title(const TransformDriver& driver) {
    return QStringLiteral("f(t)    N = %1,  T = %2,  γ0 = %3")
        .arg(QString::fromStdString(driver.WordNumberLb()), QString::fromStdString(driver.TendLb()),
             QString::fromStdString(driver.Ganmalb()));
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

}  // namespace

QString SavePlotImage(const TransformDriver& driver, const QString& path, QSize size) {
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
    const bool saved = suffix == QStringLiteral("png")
                           ? plot.savePng(path, size.width(), size.height())
                           : SaveSvg(plot, path, size);
    return saved ? QString() : QStringLiteral("cannot write the plot file ") + path;
}

}  // namespace lapdesk
