#include "transform/window/accuracy/accuracy_view.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QLabel>
#include <QStringList>
#include <QVBoxLayout>
#include <cmath>

#include "transform/accurate/accuracy_messages.h"
#include "transform/program/program_function.h"
#include "transform/window/accuracy/accuracy_layers.h"
#include "transform/window/plot/scrn_plot.h"

namespace lapdesk {

namespace {

constexpr qint64 kProgressIntervalMs = 200;

QColor AccurateColour() {
    return QColor(0x7b, 0x2c, 0xbf);
}
QColor BandColour() {
    QColor c = PlotColours::Result();
    c.setAlpha(55);
    return c;
}
QColor FlaggedColour() {
    return QColor(0xd6, 0x1f, 0x1f);
}
QColor UnreliableColour() {
    return QColor(0x80, 0x80, 0x80, 60);
}

// A see-through colour as it looks over white.
QColor OverWhite(const QColor& colour) {
    const double a = colour.alphaF();
    const auto mix = [a](int c) { return static_cast<int>(std::lround(255 - a * (255 - c))); };
    return QColor(mix(colour.red()), mix(colour.green()), mix(colour.blue()));
}

// A legend row: a swatch in the colour, the name, and what it means.
QLabel* LegendRow(const char* name, const QColor& colour, const QString& text, const QString& tip) {
    auto* label = new QLabel(
        QStringLiteral("<span style=\"background:%1;\">&nbsp;&nbsp;&nbsp;&nbsp;</span> %2")
            .arg(OverWhite(colour).name(), text));
    label->setObjectName(QString::fromLatin1(name));
    label->setToolTip(tip);
    return label;
}

QCPCurve* AddCurve(ScrnPlot* plot, const Curve& data, const QString& name) {
    auto* curve = new QCPCurve(plot->xAxis, plot->yAxis);
    curve->setName(name);
    curve->setData(QVector<double>(data.x.begin(), data.x.end()),
                   QVector<double>(data.y.begin(), data.y.end()));
    return curve;
}

void AddZone(ScrnPlot* plot, const AxisRange& t) {
    auto* zone = new QCPItemRect(plot);
    zone->topLeft->setTypeX(QCPItemPosition::ptPlotCoords);
    zone->topLeft->setTypeY(QCPItemPosition::ptAxisRectRatio);
    zone->bottomRight->setTypeX(QCPItemPosition::ptPlotCoords);
    zone->bottomRight->setTypeY(QCPItemPosition::ptAxisRectRatio);
    zone->topLeft->setCoords(t.lower, 0.0);
    zone->bottomRight->setCoords(t.upper, 1.0);
    zone->setPen(Qt::NoPen);
    zone->setBrush(UnreliableColour());
}

}  // namespace

AccuracyView::AccuracyView(ScrnPlot* scrn, QObject* parent) : QObject(parent), scrn_(scrn) {
    panel_ = BuildPanel();
    findings_ = BuildFindings();
    banner_ = new QLabel(scrn_);
    banner_->setObjectName(QStringLiteral("SingularityBanner"));
    banner_->setWordWrap(true);
    banner_->setMargin(6);
    banner_->setStyleSheet(QStringLiteral(
        "QLabel { background: #fff1d6; color: #8a1c1c; border: 1px solid #c0392b; }"));
    banner_->hide();
}

QWidget* AccuracyView::BuildPanel() {
    auto* panel = new QWidget;
    panel->setObjectName(QStringLiteral("AccuracyPanel"));
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(0, 0, 0, 0);
    method_ = new QComboBox;
    method_->setObjectName(QStringLiteral("MethodCombo"));
    method_->addItems({QStringLiteral("減衰FFT"), QStringLiteral("高精度 (de Hoog)")});
    method_->setToolTip(QStringLiteral(
        "高精度を選ぶと「実行」で減衰FFTの結果に重ねて高精度逆変換の結果も描きます"));
    grid->addWidget(new QLabel(QStringLiteral("方式")), 0, 0);
    grid->addWidget(method_, 0, 1);
    tolerance_ = new QComboBox;
    tolerance_->setObjectName(QStringLiteral("ToleranceCombo"));
    tolerance_->addItem(QStringLiteral("指定なし"));
    for (const char* tol : {"1e-3", "1e-4", "1e-5", "1e-6", "1e-8", "1e-10", "1e-12"})
        tolerance_->addItem(QString::fromLatin1(tol));
    tolerance_->setToolTip(QStringLiteral(
        "max |f| に対する目標の誤差。減衰FFTでは「実行」の後にその誤差帯から N と γ0 を選び直し"
        "（T はそのまま）、高精度では各点の目標にします"));
    grid->addWidget(new QLabel(QStringLiteral("目標精度")), 1, 0);
    grid->addWidget(tolerance_, 1, 1);
    grid->addWidget(LegendRow("AccurateLegend", AccurateColour(), QStringLiteral("高精度"),
                              QStringLiteral("de Hoog 法による高精度逆変換の結果")),
                    2, 0, 1, 2);
    grid->addWidget(
        LegendRow("BandLegend", BandColour(), QStringLiteral("誤差帯"),
                  QStringLiteral("減衰FFTの誤差の見積り: 本当の f(t) はこの帯の中と見込まれます")),
        3, 0, 1, 2);
    grid->addWidget(
        LegendRow("UnreliableLegend", UnreliableColour(), QStringLiteral("信頼できない範囲"),
                  QStringLiteral("t = 0 付近と t ≥ 0.8T: 減衰FFTの結果を信頼できない範囲")),
        4, 0, 1, 2);
    grid->addWidget(LegendRow("FlaggedLegend", FlaggedColour(), QStringLiteral("未保証の点 (×)"),
                              QStringLiteral("高精度逆変換のうち、誤差の見積りが目標に届かないか、"
                                             "減衰FFTとその誤差帯に合わない点")),
                    5, 0, 1, 2);
    return panel;
}

QWidget* AccuracyView::BuildFindings() {
    auto* findings = new QWidget;
    findings->setObjectName(QStringLiteral("AccuracyFindings"));
    auto* layout = new QVBoxLayout(findings);
    layout->setContentsMargins(0, 0, 0, 0);
    summary_ = new QLabel;
    summary_->setObjectName(QStringLiteral("AccuracySummary"));
    readout_ = new QLabel;
    readout_->setObjectName(QStringLiteral("AccuracyReadout"));
    for (QLabel* label : {summary_, readout_}) {
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    return findings;
}

bool AccuracyView::AccurateChosen() const {
    return method_->currentIndex() == 1;
}

std::optional<double> AccuracyView::Tolerance() const {
    if (tolerance_->currentIndex() <= 0) return std::nullopt;
    return tolerance_->currentText().toDouble();
}

void AccuracyView::RunAfterProgram(const TransformDriver& fft, Interpreter& session,
                                   const StatusSink& status, std::optional<FftErrorBand> bandMade) {
    banner_->hide();
    readout_->clear();
    const bool accurate = AccurateChosen();
    const QString working = accurate ? QStringLiteral("誤差帯・特異点・高精度逆変換を計算中")
                                     : QStringLiteral("誤差帯と特異点を確認中");
    status(working);
    // A few times a second: the count shows the run is alive, and painting
    // it costs next to nothing beside the values of F.
    QElapsedTimer shown;
    shown.start();
    AccuracyOptions options = AccuracyOptionsFor(true, accurate);
    options.bandMade = std::move(bandMade);
    if (accurate && Tolerance()) options.parameters.target = *Tolerance();
    options.progress = [&](std::int64_t evaluations) {
        if (shown.elapsed() < kProgressIntervalMs) return;
        shown.restart();
        status(working + QStringLiteral("（F の値 %1 個）").arg(evaluations));
    };
    report_ = RunAccuracyChecksOnProgram(fft, session, options);
    madeFor_ = fft.GetConditions();
    // What a stop cut short is not shown as points that could not be
    // computed: the accurate curve is dropped, the complete parts stay.
    if (report_->stopped) report_->accurate.reset();
    ShowFindings(fft);
    status(report_->stopped ? QStringLiteral("プログラム実行中断") : QString());
}

void AccuracyView::HideBanner() {
    banner_->hide();
}

// The summary of each result's estimated error beside the plot, and what
// needs the user's care in the banner over it.
void AccuracyView::ShowFindings(const TransformDriver& fft) {
    const AccuracyReport& report = *report_;
    QStringList summaries;
    if (!preface_.isEmpty()) summaries << preface_;
    QStringList lines;
    const auto add = [](QStringList& list, const std::string& text) {
        if (!text.empty()) list << QString::fromStdString(text);
    };
    // A check or band cut short by a stop has nothing to say.
    const std::string singular =
        report.check.stopped ? std::string() : SingularityMessage(report, fft.GetConditions());
    if (!singular.empty()) lines << QStringLiteral("⚠ ") + QString::fromStdString(singular);
    const bool bandDone = report.band && !report.band->stopped;
    if (bandDone && !report.band->ok) add(lines, report.band->reason);
    // The summary gives the share of max |f| itself; no banner for it: the
    // damped FFT at its defaults is often near 1 %, and a banner at every run
    // would hide the findings that matter more.
    if (bandDone) add(summaries, SummaryLine(SummariseFft(fft, *report.band), false));
    if (report.ends) {
        add(summaries, InitialValueLine(*report.ends));
        add(summaries, FinalValueLine(*report.ends));
    }
    if (report.accurate) {
        add(summaries, SummaryLine(SummariseAccurate(*report.accurate), true));
        add(lines, NotApplicableMessage(*report.accurate));
        add(lines, NotConvergedMessage(*report.accurate));
        add(lines, DisagreementMessage(*report.accurate));
    }
    summary_->setText(summaries.join(QLatin1Char('\n')));
    if (!lines.isEmpty()) ShowBanner(lines.join(QLatin1Char('\n')));
}

void AccuracyView::Forget() {
    report_.reset();
    preface_.clear();
    banner_->hide();
    summary_->clear();
    readout_->clear();
}

void AccuracyView::ShowBanner(const QString& text) {
    banner_->setText(text);
    banner_->setFixedWidth(std::max(200, scrn_->width() - 90));
    banner_->adjustSize();
    banner_->move(70, 8);
    banner_->show();
    banner_->raise();
}

// The report belongs to the result it was made for: the same N, T, gamma0.
bool AccuracyView::Shows(const TransformDriver& fft) const {
    const Conditions c = fft.GetConditions();
    return report_ && scrn_->view() == PlotView::Result && c.N == madeFor_.N && c.T == madeFor_.T &&
           c.Gamma0 == madeFor_.Gamma0;
}

void AccuracyView::Decorate(const TransformDriver& fft) {
    if (!Shows(fft)) return;
    const AccuracyLayers layers = MakeAccuracyLayers(fft, *report_);
    AddZone(scrn_, layers.unreliableStart);
    AddZone(scrn_, layers.unreliableEnd);
    if (!layers.bandOutline.x.empty()) {
        QCPCurve* band = AddCurve(scrn_, layers.bandOutline, QStringLiteral("誤差帯"));
        band->setPen(Qt::NoPen);
        band->setBrush(BandColour());
    }
    if (!layers.accurate.x.empty()) {
        QCPCurve* accurate = AddCurve(scrn_, layers.accurate, QStringLiteral("高精度"));
        QPen pen(AccurateColour());
        pen.setWidthF(1.5);
        accurate->setPen(pen);
    }
    if (!layers.flagged.x.empty()) {
        QCPCurve* flagged = AddCurve(scrn_, layers.flagged, QStringLiteral("未保証の点"));
        flagged->setLineStyle(QCPCurve::lsNone);
        flagged->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssCross, FlaggedColour(), 6));
    }
    scrn_->replot();
}

void AccuracyView::ShowReadout(const TransformDriver& fft, double t) {
    if (!Shows(fft)) {
        readout_->clear();
        return;
    }
    const Conditions c = fft.GetConditions();
    const int n = std::clamp(static_cast<int>(std::lround(t / c.DeltaT())), 0, c.N - 1);
    QStringList parts;
    if (report_->band && report_->band->ok)
        parts << QStringLiteral("誤差帯 ±%1").arg(report_->band->band[n], 0, 'g', 2);
    if (report_->accurate && n >= 1) {
        const AccuratePoint& p = report_->accurate->points[n - 1];
        if (p.state != PointState::NotApplicable) {
            parts << QStringLiteral("高精度 y= %1 ±%2%3")
                         .arg(p.value, 0, 'g', 12)
                         .arg(p.estimate, 0, 'g', 2)
                         .arg(p.state == PointState::Converged ? QString()
                                                               : QStringLiteral(" (未保証)"));
        }
    }
    readout_->setText(parts.join(QLatin1Char('\n')));
}

}  // namespace lapdesk
