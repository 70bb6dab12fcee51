// The accuracy features in the transform window: the method choice and the
// legend of what the plot adds (next to the parameters), the warning banner
// over the plot, the error band, the unreliable ends and the accurate curve
// drawn over the result, and the accurate value and estimates at the cursor.
// It keeps the report of the last run made by the program.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "interp/interpreter.h"
#include "transform/accurate/accuracy_run.h"
#include "transform/window/accuracy/accuracy_layers.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QWidget;

namespace lapdesk {

class ScrnPlot;

class AccuracyView : public QObject {
    Q_OBJECT
  public:
    using StatusSink = std::function<void(const QString&)>;

    // The banner lives over scrn; the panel is made here, to be placed.
    AccuracyView(ScrnPlot* scrn, QObject* parent = nullptr);

    QWidget* Panel() const { return panel_; }
    // The summary and the cursor readout: their rows come and go, so they
    // are placed where nothing below them moves.
    QWidget* Findings() const { return findings_; }
    bool AccurateChosen() const;
    // The error the user asks for, relative to max |f|; none: the method's
    // own default (the FFT at the N and gamma0 as set).
    std::optional<double> Tolerance() const;
    // The result on a logarithmic t axis (and |f| on a logarithmic axis too)
    // over the range typed as FROM:TO; the accurate method is then asked
    // for f at 20 times a decade of that range.
    enum class TimeAxis { Linear, LogT, LogLog };
    TimeAxis Axis() const;

    // After the program made the data and the FFT ran on it: the singularity
    // check, the band and, when chosen, the accurate inversion, with the
    // values of F taken so far on the status line. The user's stop request
    // ends it; a stopped run shows what was complete before the stop.
    void RunAfterProgram(const TransformDriver& fft, Interpreter& session, const StatusSink& status,
                         std::optional<FftErrorBand> bandMade = std::nullopt);
    // Data from a file, or parameters changed: there is nothing to show.
    void Forget();
    // A line to head the next findings (what a tolerance chose).
    void SetPreface(const QString& line) { preface_ = line; }
    // The plot was cleared: the banner spoke about what was drawn.
    void HideBanner();
    const std::optional<AccuracyReport>& Report() const { return report_; }

    // Adds the layers over a result just drawn (nothing over the samples).
    void Decorate(const TransformDriver& fft);
    // The accurate value and the estimates nearest to t.
    void ShowReadout(const TransformDriver& fft, double t);

  private:
    QWidget* BuildPanel();
    QWidget* BuildFindings();
    void ShowBanner(const QString& text);
    void ShowFindings(const TransformDriver& fft);
    bool Shows(const TransformDriver& fft) const;
    std::vector<double> LogTimes() const;
    void ShowOnLogTime(const AccuracyLayers& layers);
    const AccuratePoint* NearestAccurate(double t) const;

    ScrnPlot* scrn_;
    QWidget* panel_ = nullptr;
    QWidget* findings_ = nullptr;
    QComboBox* method_ = nullptr;
    QComboBox* tolerance_ = nullptr;
    QComboBox* timeAxis_ = nullptr;
    QLineEdit* timeRange_ = nullptr;
    QLabel* summary_ = nullptr;
    QLabel* readout_ = nullptr;
    QLabel* banner_ = nullptr;
    std::optional<AccuracyReport> report_;
    QString preface_;
    Conditions madeFor_;
};

}  // namespace lapdesk
