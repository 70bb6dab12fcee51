// TesmorForm, "逆ラプラス変換": the main window. It holds the transform's
// parameters and state labels (through TransformDriver), the command buttons
// and menus, the plot Scrn with its cursor readout, and the draggable result
// frame. It owns the calculator window, whose program computes F(p), and the
// import wizard; closing it ends the program.
#pragma once

#include <QMainWindow>
#include <QPointF>
#include <QString>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "calculator/calculator_dialogs.h"
#include "calculator/transform_link.h"
#include "transform/accurate/fft_error_band.h"
#include "transform/outcome.h"
#include "transform/transform_driver.h"

class QAction;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QMenu;
class QMouseEvent;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

namespace lapdesk {

class AccuracyView;
class DraggableFrame;
class FrmCplCal;
class ReadFileWisard;
class ScrnPlot;

class TesmorForm : public QMainWindow, public TransformPartner {
    Q_OBJECT
  public:
    // The dialogs answer the window's questions and file dialogs; the
    // calculator gets its own.
    explicit TesmorForm(std::unique_ptr<CalculatorDialogs> dialogs = nullptr,
                        std::unique_ptr<CalculatorDialogs> calculatorDialogs = nullptr,
                        QWidget* parent = nullptr);
    ~TesmorForm() override;

    FrmCplCal& calculator() { return *calculator_; }
    ReadFileWisard& wisard() { return *wisard_; }
    const TransformDriver& driver() const { return driver_; }

    // TransformPartner: what the calculator calls.
    void ASetLapOpValur() override;
    bool TesmorDataSet() override;
    void ZOrder() override;

    // Shows the text in StatusBar and repaints it before the work goes on.
    void SetStatus(const QString& text);

    // Commands (buttons and their menu items).
    void Command2_Click();
    void ButtonCallPfunction_Click();
    void ButtonExeTesmor_Click();
    void ButtonClearScreen_Click();
    void ButtonDrawLapData_Click();
    void ButtonDrawResult_Click();
    void ReadLapData();
    void WriteTransformFile();
    void MenueResultMemo_Click();
    void MenueProgramRead_Click();
    void MenueProgramWrite_Click();
    void MenueEnd_Click();
    void Command1_Click();
    void Check1_Click();

    // Parameter entry.
    void WordNumberLb_Click();
    void WrdList_Click(QListWidgetItem* item);
    void TendLb_Click();
    void Ganmalb_Click();
    void TendText_Enter();
    void GanmaText_Enter();
    void HaningCheck_Click();

    // Stopping a run started here: the stop button beside the status line,
    // and Esc, which also stops a drawing.
    void ButtonStopRun_Click();
    void Escape_Pressed();

    // The plot and its readout.
    void NowDispLb_Stop();
    void Scrn_MouseMove(QMouseEvent* event);
    void Scrn_MouseUp(QMouseEvent* event);

    // The accuracy features (tesmor_form_accuracy.cpp).
    void MenueAccuracyCsv_Click();

  signals:
    // Every status text, in order.
    void statusChanged(const QString& text);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    // Building (tesmor_form_build.cpp).
    QWidget* BuildPlotArea();
    void BuildResultFrame();
    QWidget* BuildSidePanel();
    QWidget* BuildLegend();
    QWidget* BuildConditionsFrame();
    QWidget* BuildButtonsFrame();
    void BuildStatusLine();
    void BuildMenus();
    QAction* MakeAction(QMenu* menu, const char* name, const QString& caption);
    QPushButton* MakeButton(const char* name, const QString& caption, const QString& tip);
    void Load();

    // Commands (tesmor_form.cpp).
    void OpenCalculator();
    void ShowNewResult();
    void ShowFailure(const std::string& reason);
    void ShowStateLabels();
    void DropStaleDrawing();
    void SetBusy(bool busy);
    void DrawContent(std::string_view name, bool result);
    void ClearReadout();
    void ShowReadout();
    void HideReadoutLabel();

    // Parameter entry (tesmor_form_entry.cpp).
    void OpenEntryBox(QLabel* label, QLineEdit* box);
    void CloseEntryBox(QLabel* label, QLineEdit* box);
    void MarkRejected(QLineEdit* box, bool rejected);
    bool EntryBoxEvent(QLineEdit* box, QEvent* event);

    void PlaceCalculator();
    void RequestStop(const QString& how);
    void ShowMeter(double value, bool reset);
    void EndRunStatus(const Outcome& outcome);

    // Files (tesmor_form_files.cpp).
    QString ChooseDataFile(FileDialogKind kind, const QString& title);
    bool ConfirmReplace(const QString& path);
    bool ConfirmResultWrite();

    // The accuracy features (tesmor_form_accuracy.cpp).
    QWidget* BuildAccuracyPanel();
    void AddAccuracyMenuItem(QMenu* file);
    void RunAccuracy(std::optional<FftErrorBand> bandMade = std::nullopt);
    std::optional<FftErrorBand> ChooseForTolerance(double tol);

    TransformDriver driver_;
    std::unique_ptr<CalculatorDialogs> dialogs_;
    std::unique_ptr<FrmCplCal> calculator_;
    ReadFileWisard* wisard_ = nullptr;
    QString fileName_;
    // The calculator's program text that made the present data ("" for data
    // from a file).
    QString dataProgram_;
    // How the present run was asked to stop ("" while it was not).
    QString stopRequestedBy_;
    bool busy_ = false;
    bool calculatorPlaced_ = false;
    bool resultFramePlaced_ = false;

    // Plot and readout.
    ScrnPlot* scrn_ = nullptr;
    QLabel* floatLb_ = nullptr;
    QLabel* posX_ = nullptr;
    QLabel* posY_ = nullptr;
    QLabel* nowDispLb_ = nullptr;
    QPointF cursor_;  // last cursor position over the plot
    bool cursorInside_ = false;

    // Result frame.
    DraggableFrame* frame3_ = nullptr;
    QPlainTextEdit* text1_ = nullptr;
    QCheckBox* check1_ = nullptr;

    // Parameters and states.
    QGroupBox* conditionsFrame_ = nullptr;
    QLabel* wordNumberLb_ = nullptr;
    QListWidget* wrdList_ = nullptr;
    QLabel* tendLb_ = nullptr;
    QLineEdit* tendText_ = nullptr;
    QLabel* ganmalb_ = nullptr;
    QLineEdit* ganmaText_ = nullptr;
    QCheckBox* haningCheck_ = nullptr;
    QLabel* cosinTableLb_ = nullptr;
    QLabel* resultLb_ = nullptr;
    QLabel* dataSourceLb_ = nullptr;
    QLabel* statusBar_ = nullptr;

    // Commands.
    QWidget* buttonsFrame_ = nullptr;
    QPushButton* buttonExeTesmor_ = nullptr;
    QPushButton* buttonDrawResult_ = nullptr;
    QPushButton* buttonResultWrite_ = nullptr;
    QAction* menueWriteResult_ = nullptr;
    QAction* menueAccuracyCsv_ = nullptr;
    QPushButton* buttonStopRun_ = nullptr;
    QProgressBar* runProgress_ = nullptr;
    // Menu items that wait while the program makes the data.
    std::vector<QAction*> busyActions_;
    AccuracyView* accuracy_ = nullptr;
};

}  // namespace lapdesk
