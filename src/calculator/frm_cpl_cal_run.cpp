// Program runs in the calculator window: the run and list controls, what the
// interpreter shows while it runs, and the link to the transform window.
#include <QCheckBox>
#include <QCoreApplication>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>

#include "calculator/code_editor.h"
#include "calculator/elided_label.h"
#include "calculator/frm_cpl_cal.h"
#include "calculator/memory_panel.h"
#include "calculator/menu_words.h"
#include "calculator/on_screen_keyboard.h"
#include "calculator/program_files.h"
#include "calculator/progress_meter.h"
#include "calculator/window_texts.h"

namespace lapdesk {

// Back to the program text while the list is shown; otherwise run.
void FrmCplCal::ButtonPrgRun_Click() {
    label5_->hide();
    if (buttonPrgRun_->text().compare(kRunCaption, Qt::CaseInsensitive) != 0) {
        ShowExecutionList(false);
        programText_->setFocus();
        return;
    }
    StartRun();
}

void FrmCplCal::StartRun() {
    ShowExecutionList(checkExeList_->isChecked());
    if (!checkExeList_->isChecked()) programText_->setFocus();
    if (tesmorLinked_) {
        // The transform's parameters are stored as globals just before the
        // analysis, so the analysis must not erase them.
        if (menueClearGlVar_->isChecked()) interpreter_.EraseGlobals();
        tesmorPartner_->ASetLapOpValur();
        RunDriver(false);
    } else {
        RunDriver(menueClearGlVar_->isChecked());
    }
}

// Always erases the globals first, whatever MenueClearGlVar says.
void FrmCplCal::MenueExe_Click() {
    RunDriver(true);
}

bool FrmCplCal::RunDriver(bool clearGlobals) {
    if (running_ || interpreter_.Running()) return false;
    BeginRun();
    double re = 0.0;
    double im = 0.0;
    const bool ok = interpreter_.RunProgram(re, im, clearGlobals, true);
    EndRun();
    if (stopPressed_) {
        statusBar()->showMessage(kRunInterrupted);
    } else if (!ok) {
        statusBar()->showMessage(QStringLiteral("プログラムの実行が失敗しました"));
    }
    return ok;
}

// A run starts with no old stop request, error mark or file message.
void FrmCplCal::BeginRun() {
    stopRequested_ = false;
    stopPressed_ = false;
    running_ = true;
    programText_->MarkErrorLine(-1);
    statusBar()->clearMessage();
    eventPace_.Start();  // a run shorter than one pace processes no events
}

void FrmCplCal::EndRun() {
    ShowKai();           // how the run ended, whatever the pace skipped
    ShowMeter();         // how far it came
    ShowRunningPlace();  // and where
    listEntry_ = -1;
    running_ = false;
    if (runShown_) UpdateEnabled();
    if (memory_->isVisible()) memory_->CommandReShowMemorys_Click();
}

void FrmCplCal::ButtonStop_Click() {
    stopRequested_ = true;
    if (running_) stopPressed_ = true;
}

void FrmCplCal::MenueExeList_Click() {
    ShowExecutionList(menueExeList_->text() == kShowListCaption);
}

// The run button and the menu item always name the view they lead to.
void FrmCplCal::ShowExecutionList(bool list) {
    menueExeList_->setText(list ? kShowProgramCaption : kShowListCaption);
    buttonPrgRun_->setText(list ? kBackToProgramCaption : kRunCaption);
    programList_->setVisible(list);
    programText_->setVisible(!list);
}

// A run keeps the input and the memory display waiting, except while one of
// its messages waits: then only the program buttons and the File menu do,
// and the line and the variables can be looked at.
void FrmCplCal::UpdateEnabled() {
    const bool runWaits = running_ && !messageWaiting_;
    programButtons_->setEnabled(!messageWaiting_);
    fileMenues_->setEnabled(!messageWaiting_ && !running_);
    buttonPrgRun_->setEnabled(!running_);
    buttonMakeTesmorData_->setEnabled(!running_);
    menueExe_->setEnabled(programMode_ && !running_);
    menueReadProgram_->setEnabled(programMode_);
    menueWriteProgram_->setEnabled(programMode_);
    menueWriteOverProgram_->setEnabled(programMode_);
    calcuFrame_->setEnabled(!arrayPanelOpen_ && !runWaits);
    memory_->setEnabled(!runWaits);
    runShown_ = running_;
}

// The execution list belongs to the text it was made from.
void FrmCplCal::ProgramText_Change() {
    if (!running_) ClearProgramList();
    interpreter_.SetProgramText(EditorTextToProgram(programText_->toPlainText()).toStdString());
}

// Marks the editor line of the statement an error names. The first error of
// a run is the one that failed; those after it are the callers that failed
// with it.
void FrmCplCal::MarkErrorLine(const StatementPlace& place) {
    if (programText_->errorLine() >= 0 || place.sourceLine < 0) return;
    programText_->MarkErrorLine(place.sourceLine);
}

// The running page, line and list entry are noted at every statement and
// shown at the screen's pace (ShowRunningPlace): drawing them per statement
// would cost far more than running it.
void FrmCplCal::ShowPageIndex(std::int16_t pageIndex) {
    runningPage_ = pageIndex;
}

void FrmCplCal::ShowLineIndex(std::int16_t lineIndex) {
    runningLine_ = lineIndex;
}

// The running page by name, its line as the editor numbers it, and the
// entry of the execution list.
void FrmCplCal::ShowRunningPlace() {
    if (listEntry_ >= 0 && programList_->isVisible()) programList_->setCurrentRow(listEntry_);
    if (runningPage_ < 0) return;  // no page has run yet
    const bool known = runningPage_ >= 0 && runningPage_ < interpreter_.PageCount();
    pgLb_->setText(known ? QString::fromStdString(interpreter_.Page(runningPage_).PageName())
                         : QString::number(runningPage_));
    const ClsCode* page = known ? &interpreter_.Page(runningPage_) : nullptr;
    const bool lineKnown = page != nullptr && runningLine_ >= 0 && runningLine_ < page->LineNum();
    const int line = lineKnown ? interpreter_.SourceLineOf(page->Line(runningLine_).LnNo) : -1;
    pcLb_->setText(line >= 0 ? QString::number(line + 1) : QString());
}

void FrmCplCal::ClearProgramList() {
    programList_->clear();
}

void FrmCplCal::AddProgramListEntry(const std::string& statement) {
    programList_->addItem(QString::fromStdString(statement));
}

bool FrmCplCal::ProgramListVisible() const {
    return programList_->isVisible();
}

void FrmCplCal::SelectProgramListEntry(std::int16_t index) {
    listEntry_ = index;
}

// Inside a program run the texts it sets (several per sample when the
// transform samples the program) are shown at the screen's pace and when
// the run ends or a message shows, not each on its own.
void FrmCplCal::SetKai(const std::string& text) {
    kaiText_ = text;
    kaiPending_ = true;
    kaiFromProgram_ = true;
    if (!interpreter_.Busy()) ShowKai();
}

void FrmCplCal::ShowKai() {
    if (!kaiPending_) return;
    kaiPending_ = false;
    kai_->SetFullText(QString::fromStdString(kaiText_));
}

void FrmCplCal::SetKaiText(const QString& text) {
    kaiPending_ = false;
    kai_->SetFullText(text);
}

void FrmCplCal::ShowHint(const std::string& text) {
    label5_->setText(QString::fromStdString(text));
    label5_->show();
}

void FrmCplCal::HideHint() {
    label5_->hide();
}

void FrmCplCal::SetPhaseColour(std::uint32_t bgr) {
    QPalette palette = messageBox_->palette();
    palette.setColor(QPalette::Window, QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF));
    palette.setColor(QPalette::WindowText, Qt::black);
    messageBox_->setPalette(palette);
}

bool FrmCplCal::RoundedDisplay() const {
    return menueSingleDisp_->isChecked();
}

void FrmCplCal::ClearMemoryDisplay() {
    memory_->ClearDisplay();
}

// A reset shows at once; the meter moves (once per sample of a transform)
// at the screen's pace inside a run, and at once outside one.
void FrmCplCal::CalProcMeter(double value, bool reset) {
    if (reset) {
        meterPending_ = false;
        emit meterChanged(value, reset);
        meter_->Reset(value);
        if (!progressWanted_) prgRningBox_->show();  // else with the progress view
        return;
    }
    meterValue_ = value;
    meterPending_ = true;
    if (!running_) ShowMeter();
    ProcessEvents();
}

void FrmCplCal::ShowMeter() {
    if (!meterPending_) return;
    meterPending_ = false;
    emit meterChanged(meterValue_, false);
    meter_->Advance(meterValue_);
}

// A run asks for window events again and again; repainting the window that
// often costs far more than the statements themselves, so the events, and
// what the run shows, come at the screen's pace (the stop button is still
// seen at once to the eye).
void FrmCplCal::ProcessEvents() {
    if (!eventPace_.Due()) return;
    if (progressWanted_ && !progressShown_ && progressPace_.Due()) {
        SetProgressView(true);
        progressShown_ = true;
    }
    ShowKai();
    ShowMeter();
    if (running_) ShowRunningPlace();
    if (running_ && !runShown_) UpdateEnabled();  // input may come now
    QCoreApplication::processEvents();
}

void FrmCplCal::ShowTransformProgress(bool on) {
    if (on) progressPace_.Start();
    if (!on && progressShown_) SetProgressView(false);
    progressWanted_ = on;
    progressShown_ = false;
}

void FrmCplCal::SetProgressView(bool on) {
    if (on) {
        keyboardBeforeProgress_ = keyboard_->isVisible();
        keyboard_->hide();
        label5_->hide();
    } else {
        keyboard_->setVisible(keyboardBeforeProgress_);
    }
    prgRningBox_->setVisible(on);
}

void FrmCplCal::TesmorCliant(TransformPartner* partner) {
    tesmorPartner_ = partner;
    tesmorLinked_ = true;
    buttonMakeTesmorData_->show();
}

void FrmCplCal::ButtonExeProgToMakeTesmorData_Click() {
    if (!tesmorLinked_ || tesmorPartner_ == nullptr || running_) return;
    if (menueClearGlVar_->isChecked()) interpreter_.EraseGlobals();
    tesmorPartner_->ASetLapOpValur();
    label5_->hide();
    // The transform runs the program once per sample: no other run meanwhile.
    BeginRun();
    const bool made = tesmorPartner_->TesmorDataSet();
    EndRun();
    if (made) tesmorPartner_->ZOrder();
}

void FrmCplCal::DmCliant(ChannelClient* client) {
    channelClient_ = client;
    LoadDmChnMenue();
}

void FrmCplCal::LoadDmChnMenue() {
    if (channelClient_ != nullptr) channelClient_->DmChnMenueLoad(channelMenus_);
    ShowFilledChannelMenus();
}

// Only menus with channels in them are offered; without a channel client
// the whole data menu stays out of the menu bar.
void FrmCplCal::ShowFilledChannelMenus() {
    bool any = false;
    for (QMenu* menu : {channelMenus_.chVp, channelMenus_.chVp2, channelMenus_.aver,
                        channelMenus_.max, channelMenus_.dmConstants}) {
        menu->menuAction()->setVisible(!menu->isEmpty());
        any = any || !menu->isEmpty();
    }
    menueData_->menuAction()->setVisible(any);
}

void FrmCplCal::InsertChannelWord(QMenu* menu, int index) {
    const QList<QAction*> entries = menu->actions();
    if (index < 0 || index >= entries.size()) return;
    const WordInsertion word = ChannelWord(entries[index]->text());
    InsertWord(word.text, word.back);
}

void FrmCplCal::MenueChVp_Click(int index) {
    InsertChannelWord(channelMenus_.chVp, index);
}
void FrmCplCal::MenueChVp2_Click(int index) {
    InsertChannelWord(channelMenus_.chVp2, index);
}
void FrmCplCal::MenueAver_Click(int index) {
    InsertChannelWord(channelMenus_.aver, index);
}
void FrmCplCal::MenueMax_Click(int index) {
    InsertChannelWord(channelMenus_.max, index);
}

}  // namespace lapdesk
