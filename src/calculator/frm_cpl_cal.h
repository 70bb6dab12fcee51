// The calculator window FrmCplCal: the immediate line with its history, the
// program editor and its runs, the memory display, the on-screen keyboard,
// the vocabulary menus, program files, and the link to the transform window.
// It draws the interpreter's state and hands every request to it.
#pragma once

#include <QMainWindow>
#include <QPoint>
#include <QPointer>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "calculator/active_text_box.h"
#include "calculator/calculator_dialogs.h"
#include "calculator/file_name_chooser.h"
#include "calculator/screen_pace.h"
#include "calculator/transform_link.h"
#include "interp/interpreter.h"
#include "interp/interpreter_view.h"

class QAction;
class QCheckBox;
class QFrame;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenu;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace lapdesk {

class CodeEditor;
class ElidedLabel;
class MemoryPanel;
class OnScreenKeyboard;
class ProgressMeter;
struct SampleProgram;
struct WordInsertion;

class FrmCplCal : public QMainWindow, public InterpreterView {
    Q_OBJECT
  public:
    explicit FrmCplCal(std::unique_ptr<CalculatorDialogs> dialogs = nullptr,
                       QWidget* parent = nullptr);
    ~FrmCplCal() override;

    Interpreter& interpreter() { return interpreter_; }

    // Immediate line and history.
    void ButtonEnter_Click();
    void HistryList_DblClick();
    void ImidateTextBox_DblClick();
    void kai_Click();
    void MessageBox_DblClick();
    bool ImmediateOk() const { return immediateOk_; }
    bool MessageWaiting() const { return messageWaiting_; }

    // Modes and runs.
    void OptionNomal_Click();
    void OptionProgram_Click();
    // Selects program mode as its option button does.
    void ShowProgramMode();
    void ButtonPrgRun_Click();
    void MenueExe_Click();
    void ButtonStop_Click();
    void MenueExeList_Click();
    void Waite();
    // The view the transform window shows while it makes its data: the
    // running panel in place of the keyboard and the hint.
    void SetProgressView(bool on);

    // On-screen keyboard.
    void Key_Click(int index);
    void TenKey_Click(int index);
    void Ctlkey_Click(int index);
    void InsertAtCaret(const QString& text);
    void InsertWord(const QString& text, int back);
    void CommandKeyBoard_Click();

    // Language options.
    void MenuCaps_Click();
    void MenueClearGlVar_Click();

    // Program files and samples.
    bool SetFileNameCAL(QString& fileName, std::int16_t mode);
    void MenueReadProgram_Click();
    void MenueWriteProgram_Click();
    void MenueWriteOverProgram_Click();
    void ReadTextFile(const QString& fileName, QPlainTextEdit* box);
    void WriteTextFile(const QString& fileName, QPlainTextEdit* box);
    void MenueSample_Click(int index);
    void MenueTesmorSample_Click(int index);
    const QString& FileErrorText() const { return files_.fileErrorText(); }
    const QString& ProgramFileName() const { return programFileName_; }
    // Before the program text is replaced or the program ends: when the text
    // has changed since it was read or saved, asks whether to save it. False
    // when the user cancels (or the save failed): nothing is to be dropped.
    bool ConfirmDiscard();
    // The file dialogs with the last folder used, shared with the transform
    // window so that both start where the user last was.
    FileNameChooser& FileNames() { return files_; }

    // Transform link and data channels.
    void TesmorCliant(TransformPartner* partner);
    bool TesmorLinked() const { return tesmorLinked_; }
    void ButtonExeProgToMakeTesmorData_Click();
    void DmCliant(ChannelClient* client);
    void LoadDmChnMenue();
    void MenueChVp_Click(int index);
    void MenueChVp2_Click(int index);
    void MenueAver_Click(int index);
    void MenueMax_Click(int index);

    // InterpreterView.
    void Errmessage(const std::string& message) override;
    void ShowPageIndex(std::int16_t pageIndex) override;
    void ShowLineIndex(std::int16_t lineIndex) override;
    void ClearProgramList() override;
    void AddProgramListEntry(const std::string& statement) override;
    bool ProgramListVisible() const override;
    void SelectProgramListEntry(std::int16_t index) override;
    void SetKai(const std::string& text) override;
    void ShowHint(const std::string& text) override;
    void HideHint() override;
    void SetPhaseColour(std::uint32_t bgr) override;
    bool RoundedDisplay() const override;
    void ClearMemoryDisplay() override;
    void CalProcMeter(double value, bool reset) override;
    bool StopRequested() const override { return stopRequested_; }
    void ClearStopRequest() override { stopRequested_ = false; }
    // The progress view comes at the first events one pace into the data
    // creation: a creation shorter than that never swaps the keyboard out.
    void ShowTransformProgress(bool on) override;
    void ShowProgramError(const ProgramError& error) override;
    void ProcessEvents() override;

  signals:
    // An error message is shown and waits to be double-clicked away.
    void messageShown(const QString& message);
    void messageDismissed();
    // The progress meter was reset to a width or advanced to a value.
    void meterChanged(double value, bool reset);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    // Building (frm_cpl_cal_build.cpp).
    QWidget* BuildColumn();
    QWidget* BuildModeRow();
    QWidget* BuildCalcuFrame();
    QWidget* BuildMessageBase();
    QWidget* BuildProgramFrame();
    void BuildMenus();
    void BuildProgramMenus();
    void BuildOptionMenu();
    void BuildChannelMenus();
    QAction* MakeAction(const QString& name, const QString& text, QMenu* menu);
    void InstallGestures();

    // Running (frm_cpl_cal_run.cpp).
    void StartRun();
    bool RunDriver(bool clearGlobals);
    void BeginRun();
    void EndRun();
    void ShowExecutionList(bool list);
    void ShowMessage(QString text);
    void MarkErrorLine(const StatementPlace& place);
    void ShowRunningPlace();
    void ShowKai();                        // the answer field's pending text
    void ShowMeter();                      // the meter's pending value
    void SetKaiText(const QString& text);  // the answer field, at once
    void HoldInputForMessage(bool hold);
    void UpdateEnabled();

    void ProgramText_Change();
    void ProgramText_DblClick();
    void SetActiveBox(bool program);
    void Escape();
    void ZoomFont(QWidget* widget);
    void LoadSample(const std::vector<SampleProgram>& samples, int index);
    void InsertChannelWord(QMenu* menu, int index);
    void ShowFilledChannelMenus();
    void ShowFileOutcome(const QString& done);
    void ShowTitle();
    void MarkProgramSaved();
    bool HistoryKey(int key);

    Interpreter interpreter_;
    std::unique_ptr<CalculatorDialogs> dialogs_;
    FileNameChooser files_;
    ActiveTextBox activeBox_;

    // Immediate line and history.
    QRadioButton* optionNomal_ = nullptr;
    QRadioButton* optionProgram_ = nullptr;
    QWidget* calcuFrame_ = nullptr;
    QLineEdit* imidateTextBox_ = nullptr;
    ElidedLabel* kai_ = nullptr;
    QLabel* label5_ = nullptr;
    QListWidget* histryList_ = nullptr;
    QFrame* messageBase_ = nullptr;
    QLabel* messageBox_ = nullptr;

    // Program.
    QWidget* programFrame_ = nullptr;
    QWidget* programButtons_ = nullptr;
    QPushButton* buttonPrgRun_ = nullptr;
    QPushButton* buttonMakeTesmorData_ = nullptr;
    QCheckBox* checkExeList_ = nullptr;
    QWidget* prgRningBox_ = nullptr;
    ProgressMeter* meter_ = nullptr;
    QLabel* pgLb_ = nullptr;
    QLabel* pcLb_ = nullptr;
    CodeEditor* programText_ = nullptr;
    QListWidget* programList_ = nullptr;

    OnScreenKeyboard* keyboard_ = nullptr;
    MemoryPanel* memory_ = nullptr;

    // Menus.
    QMenu* fileMenues_ = nullptr;
    QAction* menueReadProgram_ = nullptr;
    QAction* menueWriteProgram_ = nullptr;
    QAction* menueWriteOverProgram_ = nullptr;
    QAction* menueExe_ = nullptr;
    QAction* menueExeList_ = nullptr;
    QAction* menueClearGlVar_ = nullptr;
    QAction* menuCaps_ = nullptr;
    QAction* menueSingleDisp_ = nullptr;
    QMenu* menueCtWord_ = nullptr;
    QMenu* menueData_ = nullptr;  // holds the channel menus
    ChannelMenus channelMenus_;

    // State.
    int mouseShift_ = 0;
    QPoint pressedAt_;
    bool mouseShiftOnly_ = false;
    bool immediateOk_ = false;
    bool kaiFromProgram_ = false;  // kai shows what a program run left
    std::string kaiText_;          // what a run set last; drawn at the screen's pace
    bool kaiPending_ = false;      // kaiText_ is not drawn yet
    double meterValue_ = 0.0;      // where a run moved the meter; drawn at the same pace
    bool meterPending_ = false;
    int historyRow_ = -1;  // the entry Up and Down last recalled
    bool messageWaiting_ = false;
    bool stopRequested_ = false;
    bool stopPressed_ = false;  // the stop button ended the present run
    bool running_ = false;
    // The buttons and menus show the run (UpdateEnabled during it). A run
    // that ends before events are processed never shows it: no input can
    // come meanwhile, and the window is not repainted twice for nothing.
    bool runShown_ = false;
    bool programMode_ = false;
    bool arrayPanelOpen_ = false;
    bool selectionMode_ = false;
    bool keyboardBeforeProgress_ = false;
    std::int16_t runningPage_ = -1;
    std::int16_t runningLine_ = -1;
    std::int16_t listEntry_ = -1;           // the execution list entry to select, -1 for none
    ScreenPace eventPace_{20};              // when window events run during a run
    ScreenPace progressPace_{20};           // when the progress view comes
    bool progressWanted_ = false;           // the transform is making its data
    bool progressShown_ = false;            // and the progress view is in place
    QPointer<QWidget> focusBeforeMessage_;  // gets the focus back after a message
    QString programFileName_;
    TransformPartner* tesmorPartner_ = nullptr;
    bool tesmorLinked_ = false;
    ChannelClient* channelClient_ = nullptr;
};

}  // namespace lapdesk
