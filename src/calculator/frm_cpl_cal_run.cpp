// Program runs in the calculator window: the run and list controls, what the
// interpreter shows while it runs, and the link to the transform window.
#include <QCheckBox>
#include <QCoreApplication>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>

#include "calculator/code_editor.h"
#include "calculator/error_location.h"
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
    if (memory_->isVisible()) memory_->CommandReShowMemorys_Click();
}

// Always erases the globals first, whatever MenueClearGlVar says.
void FrmCplCal::MenueExe_Click() {
    RunDriver(true);
    if (memory_->isVisible()) memory_->CommandReShowMemorys_Click();
}

bool FrmCplCal::RunDriver(bool clearGlobals) {
    if (running_ || interpreter_.Running()) return false;
    stopRequested_ = false;
    running_ = true;
    programText_->MarkErrorLine(-1);
    UpdateEnabled();
    double re = 0.0;
    double im = 0.0;
    const bool ok = interpreter_.RunProgram(re, im, clearGlobals, true);
    running_ = false;
    UpdateEnabled();
    return ok;
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

void FrmCplCal::UpdateEnabled() {
    programButtons_->setEnabled(!messageWaiting_);
    fileMenues_->setEnabled(!messageWaiting_ && !running_);
    buttonPrgRun_->setEnabled(!running_);
    buttonMakeTesmorData_->setEnabled(!running_);
    menueExe_->setEnabled(programMode_ && !running_);
    menueReadProgram_->setEnabled(programMode_);
    menueWriteProgram_->setEnabled(programMode_);
    menueWriteOverProgram_->setEnabled(programMode_);
    calcuFrame_->setEnabled(!arrayPanelOpen_ && !running_);
    memory_->setEnabled(!running_);
}

void FrmCplCal::ProgramText_Change() {
    interpreter_.SetProgramText(EditorTextToProgram(programText_->toPlainText()).toStdString());
}

// Marks the editor line of the statement an analysis or run error names.
// The first error of a run is the one that failed; those after it are the
// callers that failed with it.
void FrmCplCal::MarkErrorLocation(const std::string& message) {
    const auto location = ParseErrorLocation(QString::fromStdString(message));
    if (!location || programText_->errorLine() >= 0) return;
    const ClsCode* page = interpreter_.FindPage(location->page.toStdString());
    const int line = location->statement - 1;
    if (page == nullptr || line < 0 || line >= page->LineNum()) return;
    const int entry = page->Line(static_cast<std::int16_t>(line)).LnNo;
    QStringList statements;
    for (int k = 0; k < programList_->count(); ++k)
        statements << programList_->item(k)->text();
    const std::vector<int> lines =
        MapStatementsToLines(programText_->toPlainText().split('\n'), statements);
    if (entry >= 0 && entry < static_cast<int>(lines.size()) && lines[entry] >= 0) {
        programText_->MarkErrorLine(lines[entry]);
    }
}

void FrmCplCal::ShowPageIndex(std::int16_t pageIndex) {
    pgLb_->setNum(pageIndex);
}
void FrmCplCal::ShowLineIndex(std::int16_t lineIndex) {
    pcLb_->setNum(lineIndex);
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
    programList_->setCurrentRow(index);
}

void FrmCplCal::SetKai(const std::string& text) {
    kai_->setText(QString::fromStdString(text));
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

void FrmCplCal::CalProcMeter(double value, bool reset) {
    if (reset) {
        meter_->Reset(value);
        prgRningBox_->show();
        return;
    }
    meter_->Advance(value);
    ProcessEvents();
}

void FrmCplCal::ProcessEvents() {
    QCoreApplication::processEvents();
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
    running_ = true;
    UpdateEnabled();
    const bool made = tesmorPartner_->TesmorDataSet();
    running_ = false;
    UpdateEnabled();
    if (made) tesmorPartner_->ZOrder();
}

void FrmCplCal::DmCliant(ChannelClient* client) {
    channelClient_ = client;
    LoadDmChnMenue();
}

void FrmCplCal::LoadDmChnMenue() {
    if (channelClient_ != nullptr) channelClient_->DmChnMenueLoad(channelMenus_);
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
