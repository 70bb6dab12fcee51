// The transform window's commands: making the data with the calculator's
// program, the transform, drawing, the result frame, the state labels and
// their enabling rules, the status line, and the end of the program.
#include "transform/window/tesmor_form.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

#include "calculator/frm_cpl_cal.h"
#include "calculator/screen_pace.h"
#include "transform/accurate/accuracy_messages.h"
#include "transform/ldt_file.h"
#include "transform/program/program_function.h"
#include "transform/program/program_sampling.h"
#include "transform/window/accuracy/accuracy_view.h"
#include "transform/window/draggable_frame.h"
#include "transform/window/plot/scrn_plot.h"
#include "transform/window/state_captions.h"
#include "transform/window/window_placement.h"

namespace lapdesk {

namespace {

// How often a drawing in progress is shown while it goes on.
constexpr std::int64_t kDrawingRepaintMs = 40;

const QString kWritingResultText =
    QStringLiteral("結果のテキストデータ作成中 もう一寸待ってね！！");
const QString kInversionFailed = QStringLiteral("逆変換失敗");

QString FromStd(const std::string& text) {
    return QString::fromStdString(text);
}

// The result text with the line breaks the text box expects.
QString DisplayText(const std::string& text) {
    QString shown = FromStd(text);
    shown.remove(QLatin1Char('\r'));
    return shown;
}

// "OK" and "Math"/"File" stand out from "Non".
void ShowState(QLabel* label, const std::string& text, bool good) {
    label->setText(FromStd(text));
    label->setStyleSheet(good ? QStringLiteral("color: #0b6e2e; font-weight: bold;")
                              : QStringLiteral("color: #777;"));
}

}  // namespace

void TesmorForm::ASetLapOpValur() {
    lapdesk::ASetLapOpValur(calculator_->interpreter(), driver_);
}

// Runs the program for every sample point, then transforms and shows the
// result.
bool TesmorForm::TesmorDataSet() {
    if (busy_) return false;
    stopRequestedBy_.clear();
    SetBusy(true);
    accuracy_->Forget();
    const Outcome made = MakeDataFromProgram(driver_, calculator_->interpreter());
    SetBusy(false);
    if (!made.ok) {
        EndRunStatus(made);
        return false;
    }
    dataProgram_ = QString::fromStdString(calculator_->interpreter().ProgramText());
    std::optional<FftErrorBand> band;
    if (accuracy_->Tolerance() && !accuracy_->AccurateChosen()) {
        band = ChooseForTolerance(*accuracy_->Tolerance());
        if (!stopRequestedBy_.isEmpty()) {
            EndRunStatus(Outcome::Failure(std::string()));
            return false;
        }
    }
    ShowNewResult();
    RunAccuracy(std::move(band));
    return true;
}

// The FFT's N and gamma0 for the tolerance; the labels show the choice, the
// findings begin with what was chosen and reached. Returns the chosen run's
// band.
std::optional<FftErrorBand> TesmorForm::ChooseForTolerance(double tol) {
    SetBusy(true);
    runProgress_->setRange(0, 0);
    SetStatus(QStringLiteral("目標精度に合う N と γ0 を探しています"));
    FftChoice choice = ChooseFftParametersOnProgram(driver_, calculator_->interpreter(), tol);
    SetBusy(false);
    const QString line = QString::fromStdString(FftChoiceLine(choice, tol));
    accuracy_->SetPreface(line);
    SetStatus(line);
    return std::move(choice.band);
}

// A stop asked for here is reported as the stop it was, with how it was
// asked; any other end of the run with its reason.
void TesmorForm::EndRunStatus(const Outcome& outcome) {
    if (!stopRequestedBy_.isEmpty()) {
        SetStatus(QStringLiteral("プログラム実行中断：") + stopRequestedBy_ +
                  QStringLiteral("で中断しました"));
    } else if (!outcome.ok) {
        ShowFailure(outcome.reason);
    }
}

void TesmorForm::ButtonStopRun_Click() {
    RequestStop(QStringLiteral("中断ボタン"));
}

// Esc stops a drawing, and a run started from this window.
void TesmorForm::Escape_Pressed() {
    NowDispLb_Stop();
    RequestStop(QStringLiteral("Esc "));
}

// The calculator's stop request, which every phase of the run polls.
void TesmorForm::RequestStop(const QString& how) {
    if (!busy_ || !stopRequestedBy_.isEmpty()) return;
    stopRequestedBy_ = how;
    calculator_->ButtonStop_Click();
    SetStatus(QStringLiteral("中断しています…"));
}

// The calculator's progress meter, mirrored while this window runs.
void TesmorForm::ShowMeter(double value, bool reset) {
    if (!busy_) return;
    if (reset) {
        runProgress_->setRange(0, std::max(1, static_cast<int>(std::lround(value))));
        runProgress_->setValue(0);
    } else if (value > 0) {
        runProgress_->setValue(
            std::min(runProgress_->maximum(), static_cast<int>(std::lround(value))));
    }
}

void TesmorForm::ZOrder() {
    show();
    raise();
    activateWindow();
}

void TesmorForm::SetStatus(const QString& text) {
    statusBar_->setText(text);
    statusBar_->setToolTip(QString());
    ShowStateLabels();
    statusBar_->repaint();
    emit statusChanged(text);
}

// A failure stays on the status line: the status the work ended with (or
// "逆変換失敗" when the inversion cleared it) and the reason in words, also on
// the tooltip when the line is too short for it.
void TesmorForm::ShowFailure(const std::string& reason) {
    const QString ended = statusBar_->text().isEmpty() ? kInversionFailed : statusBar_->text();
    const QString text = reason.empty() ? ended : ended + QStringLiteral("：") + FromStd(reason);
    SetStatus(text);
    statusBar_->setToolTip(text);
}

// The labels show the driver's parameters and states; the states enable the
// commands that need data or a result (the accuracy data, also a finished
// run).
void TesmorForm::ShowStateLabels() {
    const Conditions& c = driver_.GetConditions();
    wordNumberLb_->setText(FromStd(NCaption(c)));
    tendLb_->setText(FromStd(TCaption(c)));
    ganmalb_->setText(FromStd(Gamma0Caption(c)));
    cosinTableLb_->setText(FromStd(CosTableCaption(driver_)));
    const bool data = driver_.HasData();
    const bool result = driver_.HasResult();
    ShowState(dataSourceLb_, std::string(DataSourceCaption(driver_.Source())), data);
    ShowState(resultLb_, std::string(ResultCaption(result)), result);
    buttonExeTesmor_->setEnabled(data);
    buttonResultWrite_->setEnabled(data);
    buttonDrawResult_->setEnabled(result);
    menueWriteResult_->setEnabled(result && !busy_);
    menueAccuracyCsv_->setEnabled(result && !busy_);
    DropStaleDrawing();
}

// The plot, its marker and the result table show only what belongs to the
// present data and parameters: a failed or started run, a new N, T or gamma0
// take away the result drawn for the old ones.
void TesmorForm::DropStaleDrawing() {
    const bool data = driver_.HasData();
    const bool result = driver_.HasResult();
    const PlotView drawn = scrn_->view();
    if ((drawn == PlotView::Result && !result) || (drawn == PlotView::Data && !data)) {
        ButtonClearScreen_Click();
    }
    if (!result && !text1_->document()->isEmpty()) {
        text1_->clear();
        frame3_->hide();
    }
    // The accuracy findings speak of data that are gone.
    if (!data) accuracy_->Forget();
}

// While the program makes the data, only the stop (here and in the
// calculator), its progress and the end of the program are offered.
void TesmorForm::SetBusy(bool busy) {
    busy_ = busy;
    buttonsFrame_->setEnabled(!busy);
    conditionsFrame_->setEnabled(!busy);
    for (QAction* action : busyActions_) {
        action->setEnabled(!busy);
    }
    buttonStopRun_->setEnabled(busy);
    runProgress_->setVisible(busy);
    ShowStateLabels();
}

// Opening the calculator hides the result frame; the calculator opens in
// program mode, in front, where it covers none of this window's commands.
void TesmorForm::OpenCalculator() {
    frame3_->hide();
    PlaceCalculator();
    calculator_->show();
    calculator_->raise();
    calculator_->activateWindow();
    calculator_->ShowProgramMode();
}

// The first time: beside this window (narrowed, or this window moved over,
// when that makes room), else over the left of the plot.
void TesmorForm::PlaceCalculator() {
    if (calculatorPlaced_ || screen() == nullptr) return;
    calculatorPlaced_ = true;
    const int decoration = frameGeometry().width() - width();
    const int otherDecoration = calculator_->frameSize().width() - calculator_->width();
    const WindowPlacement place = PlaceBeside(
        {frameGeometry(), minimumSizeHint().width() + decoration, calculator_->frameSize(),
         calculator_->minimumSizeHint().width() + otherDecoration},
        screen()->availableGeometry(), 8);
    if (place.mainWidth != frameGeometry().width()) resize(place.mainWidth - decoration, height());
    if (place.main != frameGeometry().topLeft()) move(place.main);
    calculator_->resize(place.besideWidth - otherDecoration, calculator_->height());
    calculator_->move(place.beside);
}

// "実行": the calculator's own data command, so that both windows know a
// program is running; it calls back ASetLapOpValur, TesmorDataSet and ZOrder.
// The calculator is shown, but stays behind while it has nothing to say (a
// failure's message brings it to the front).
void TesmorForm::Command2_Click() {
    frame3_->hide();
    PlaceCalculator();
    if (!calculator_->isVisible()) calculator_->show();
    calculator_->ShowProgramMode();
    calculator_->ButtonExeProgToMakeTesmorData_Click();
}

void TesmorForm::ButtonCallPfunction_Click() {
    OpenCalculator();
}

void TesmorForm::ButtonExeTesmor_Click() {
    const Outcome inverted = driver_.Invert();
    if (inverted.ok) {
        ShowNewResult();
    } else {
        ShowFailure(inverted.reason);
    }
}

// After every transform: the result table in Text1, the frame shown, and
// f(t) drawn.
void TesmorForm::ShowNewResult() {
    SetStatus(kWritingResultText);
    text1_->setPlainText(DisplayText(WriteResultText(driver_)));
    text1_->document()->setModified(false);
    MenueResultMemo_Click();
    DrawContent(kNowDispResult, true);
    SetStatus(QString());
}

void TesmorForm::ButtonClearScreen_Click() {
    nowDispLb_->clear();
    accuracy_->HideBanner();
    ClearReadout();
    scrn_->ClearScreen(driver_.GetConditions().T);
}

// A readout belongs to the drawing it was read from.
void TesmorForm::ClearReadout() {
    posX_->setText(QStringLiteral("t= "));
    posY_->setText(QStringLiteral("y= "));
    floatLb_->hide();
}

// Without data there is nothing to draw: no zeros that look like F = 0.
void TesmorForm::ButtonDrawLapData_Click() {
    if (!driver_.HasData()) {
        SetStatus(
            QStringLiteral("表示するデータが有りません（実行又はデータ読込で作成してください）"));
        return;
    }
    DrawContent(kNowDispData, false);
}

void TesmorForm::ButtonDrawResult_Click() {
    DrawContent(kNowDispResult, true);
}

// NowDispLb names what is being drawn; the drawing stops as soon as it
// names something else (Esc empties it).
void TesmorForm::DrawContent(std::string_view name, bool result) {
    const QString shown = QString::fromUtf8(name.data(), name.size());
    nowDispLb_->setText(shown);
    ClearReadout();
    ScrnPlot::DrawControl control;
    control.keepDrawing = [this, shown] { return nowDispLb_->text() == shown; };
    control.letEventsRun = [] { QCoreApplication::processEvents(); };
    // A drawing shorter than the screen's pace shows once, when it is done.
    ScreenPace pace(kDrawingRepaintMs);
    pace.Start();
    control.repaintDue = [&pace] { return pace.Due(); };
    const bool drawn = scrn_->Draw(result ? ResultContent(driver_) : DataContent(driver_), control);
    if (drawn && result) accuracy_->Decorate(driver_);
}

void TesmorForm::NowDispLb_Stop() {
    nowDispLb_->clear();
}

// The frame starts in the plot's upper right corner, where a decaying f(t)
// leaves room, and stays where the user drags it.
void TesmorForm::MenueResultMemo_Click() {
    if (!resultFramePlaced_) {
        resultFramePlaced_ = true;
        frame3_->MoveWithin(QPoint(scrn_->width() - frame3_->width() - 24, 24));
    } else {
        frame3_->MoveWithin(frame3_->pos());
    }
    frame3_->show();
    frame3_->raise();
}

void TesmorForm::Command1_Click() {
    frame3_->hide();
}

void TesmorForm::Check1_Click() {
    text1_->setReadOnly(!check1_->isChecked());
}

void TesmorForm::MenueEnd_Click() {
    close();
}

// Closing the main window ends the program: the drawing and any run stop,
// the calculator closes with it.
void TesmorForm::closeEvent(QCloseEvent* event) {
    // The calculator's program is not dropped unasked.
    if (!calculator_->ConfirmDiscard()) {
        event->ignore();
        return;
    }
    nowDispLb_->clear();
    calculator_->close();
    event->accept();
    QCoreApplication::quit();
}

}  // namespace lapdesk
