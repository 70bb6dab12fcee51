#include "transform/window/accuracy/accuracy_view.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStringList>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <limits>

#include "transform/accurate/accuracy_messages.h"
#include "transform/accurate/time_grid.h"
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
    timeAxis_ = new QComboBox;
    timeAxis_->setObjectName(QStringLiteral("TimeAxisCombo"));
    timeAxis_->addItems({QStringLiteral("線形 t (0〜T)"), QStringLiteral("対数 t"),
                         QStringLiteral("対数 t・対数 |f|")});
    timeAxis_->setToolTip(
        QStringLiteral("対数の時間軸では、高精度の f を下の範囲で 1 桁あたり 20 点求めて描きます"
                       "（減衰FFT の曲線は 0〜T の中だけ）"));
    timeRange_ = new QLineEdit(QStringLiteral("1e-3:1e3"));
    timeRange_->setObjectName(QStringLiteral("TimeRangeEdit"));
    timeRange_->setToolTip(QStringLiteral("対数の時間軸の範囲 FROM:TO（0 < FROM < TO）"));
    timeRange_->setEnabled(false);
    connect(timeAxis_, &QComboBox::currentIndexChanged, timeRange_,
            [this](int index) { timeRange_->setEnabled(index != 0); });
    grid->addWidget(new QLabel(QStringLiteral("時間軸")), 2, 0);
    grid->addWidget(timeAxis_, 2, 1);
    grid->addWidget(timeRange_, 3, 1);
    grid->addWidget(LegendRow("AccurateLegend", AccurateColour(), QStringLiteral("高精度"),
                              QStringLiteral("de Hoog 法による高精度逆変換の結果")),
                    4, 0, 1, 2);
    grid->addWidget(
        LegendRow("BandLegend", BandColour(), QStringLiteral("誤差帯"),
                  QStringLiteral("減衰FFTの誤差の見積り: 本当の f(t) はこの帯の中と見込まれます")),
        5, 0, 1, 2);
    grid->addWidget(
        LegendRow("UnreliableLegend", UnreliableColour(), QStringLiteral("信頼できない範囲"),
                  QStringLiteral("t = 0 付近と t ≥ 0.8T: 減衰FFTの結果を信頼できない範囲")),
        6, 0, 1, 2);
    grid->addWidget(LegendRow("FlaggedLegend", FlaggedColour(), QStringLiteral("未保証の点 (×)"),
                              QStringLiteral("高精度逆変換のうち、誤差の見積りが目標に届かないか、"
                                             "減衰FFTとその誤差帯に合わない点")),
                    7, 0, 1, 2);
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

AccuracyView::TimeAxis AccuracyView::Axis() const {
    return static_cast<TimeAxis>(timeAxis_->currentIndex());
}

// 20 times a decade over the range typed; none when it does not read as
// 0 < FROM < TO.
std::vector<double> AccuracyView::LogTimes() const {
    const QStringList ends = timeRange_->text().split(QLatin1Char(':'));
    if (ends.size() != 2) return {};
    bool fromOk = false, toOk = false;
    const double from = ends[0].trimmed().toDouble(&fromOk);
    const double to = ends[1].trimmed().toDouble(&toOk);
    if (!fromOk || !toOk || !(from > 0) || !(to > from) || !std::isfinite(to)) return {};
    const double count = 1 + std::ceil(20 * std::log10(to / from));
    return TimesBetween(from, to, static_cast<std::size_t>(std::min(count, 2001.0)), true);
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
    if (accurate && Axis() != TimeAxis::Linear) options.times = LogTimes();
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
    const bool logTime = Axis() != TimeAxis::Linear;
    // On a log axis t = 0 has no place, and the untrusted ends of the record
    // would read as features of f: the FFT's band is kept to its trusted part.
    Curve bandOutline = layers.bandOutline;
    if (logTime) {
        ShowOnLogTime(layers);
        for (std::size_t k = bandOutline.x.size(); k-- > 0;) {
            const double t = bandOutline.x[k];
            if (t >= layers.unreliableStart.upper && t <= layers.unreliableEnd.lower) continue;
            bandOutline.x.erase(bandOutline.x.begin() + static_cast<long>(k));
            bandOutline.y.erase(bandOutline.y.begin() + static_cast<long>(k));
        }
    } else {
        AddZone(scrn_, layers.unreliableStart);
    }
    AddZone(scrn_, layers.unreliableEnd);
    if (!bandOutline.x.empty()) {
        QCPCurve* band = AddCurve(scrn_, bandOutline, QStringLiteral("誤差帯"));
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

// The axes for the log view, and the accurate estimate as a band of its
// own (seen on the log-log axes, where it is not hidden by the line).
void AccuracyView::ShowOnLogTime(const AccuracyLayers& layers) {
    const std::vector<double> times = LogTimes();
    const bool logF = Axis() == TimeAxis::LogLog;
    double low = std::numeric_limits<double>::infinity();
    double high = -low;
    for (const double y : layers.accurate.y) {
        if (!std::isfinite(y) || (logF && y <= 0)) continue;
        low = std::min(low, y);
        high = std::max(high, y);
    }
    if (times.empty() || !(low <= high)) return;
    // Over decades of t the FFT's untrusted ends would read as features of
    // f (and its values at or below 0 fall off a log |f| axis): they go.
    if (scrn_->graphCount() > 0) {
        QCPGraph* fft = scrn_->graph(0);
        fft->data()->removeBefore(layers.unreliableStart.upper);
        fft->data()->removeAfter(layers.unreliableEnd.lower);
        if (logF) {
            QVector<double> keys, values;
            for (const QCPGraphData& point : *fft->data()) {
                if (point.value <= 0) continue;
                keys << point.key;
                values << point.value;
            }
            fft->setData(keys, values, true);
        }
    }
    const double margin = logF ? 0.0 : 0.05 * std::max(high - low, 1e-12);
    scrn_->ShowLogTime(times.front(), times.back(), logF ? low / 2 : low - margin,
                       logF ? high * 2 : high + margin, logF);
    if (!report_->accurate) return;
    Curve outline;
    const auto& points = report_->accurate->points;
    for (const AccuratePoint& p : points) {
        if (p.state != PointState::Converged) continue;
        outline.x.push_back(p.t);
        outline.y.push_back(p.value + p.estimate);
    }
    for (auto p = points.rbegin(); p != points.rend(); ++p) {
        if (p->state != PointState::Converged) continue;
        outline.x.push_back(p->t);
        outline.y.push_back(p->value - p->estimate);
    }
    if (outline.x.empty()) return;
    QCPCurve* band = AddCurve(scrn_, outline, QStringLiteral("高精度の誤差見積り"));
    band->setPen(Qt::NoPen);
    QColor fill = AccurateColour();
    fill.setAlpha(60);
    band->setBrush(fill);
}

const AccuratePoint* AccuracyView::NearestAccurate(double t) const {
    if (!report_->accurate || report_->accurate->points.empty() || !(t > 0)) return nullptr;
    const auto& points = report_->accurate->points;
    return &*std::min_element(points.begin(), points.end(), [t](const auto& a, const auto& b) {
        return std::abs(std::log(a.t / t)) < std::abs(std::log(b.t / t));
    });
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
    if (const AccuratePoint* nearest = NearestAccurate(t)) {
        const AccuratePoint& p = *nearest;
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
