// Program files and sample programs in the calculator window.
#include <QRadioButton>
#include <QStatusBar>
#include <QTextCursor>

#include "calculator/code_editor.h"
#include "calculator/frm_cpl_cal.h"
#include "calculator/program_files.h"
#include "calculator/sample_programs.h"

namespace lapdesk {

namespace {

// Through the cursor, so that replacing the whole text can be undone.
void ReplaceText(QPlainTextEdit* box, const QString& editorText) {
    QTextCursor cursor = box->textCursor();
    cursor.select(QTextCursor::Document);
    cursor.insertText(editorText);
    cursor.movePosition(QTextCursor::Start);
    box->setTextCursor(cursor);
}

}  // namespace

bool FrmCplCal::SetFileNameCAL(QString& fileName, std::int16_t mode) {
    return files_.Choose(this, fileName, mode);
}

void FrmCplCal::MenueReadProgram_Click() {
    QString name = programFileName_;
    if (!SetFileNameCAL(name, kOpenProgramDialog)) return;
    programFileName_ = name;
    ReadTextFile(name, programText_);
    programText_->setFocus();
    ShowFileOutcome(QStringLiteral("読み込みました: ") + name);
}

void FrmCplCal::MenueWriteProgram_Click() {
    QString name = programFileName_;
    if (!SetFileNameCAL(name, kSaveProgramDialog)) return;
    programFileName_ = name;
    WriteTextFile(name, programText_);
    ShowFileOutcome(QStringLiteral("保存しました: ") + name);
}

// Without a current file there is nothing to overwrite: ask for a name.
void FrmCplCal::MenueWriteOverProgram_Click() {
    if (programFileName_.isEmpty()) {
        MenueWriteProgram_Click();
        return;
    }
    WriteTextFile(programFileName_, programText_);
    ShowFileOutcome(QStringLiteral("保存しました: ") + programFileName_);
}

void FrmCplCal::ReadTextFile(const QString& fileName, QPlainTextEdit* box) {
    const ProgramFileRead read = ReadProgramFile(fileName);
    if (!read.ok) {
        files_.SetFileErrorText(read.reason);
        return;
    }
    files_.SetFileErrorText(QString());
    ReplaceText(box, ProgramToEditorText(read.text));
}

void FrmCplCal::WriteTextFile(const QString& fileName, QPlainTextEdit* box) {
    files_.SetFileErrorText(WriteProgramFile(fileName, EditorTextToProgram(box->toPlainText())));
}

void FrmCplCal::ShowFileOutcome(const QString& done) {
    const QString& error = files_.fileErrorText();
    statusBar()->showMessage(error.isEmpty() ? done : error);
    setWindowTitle(QStringLiteral("複素数計算機 - ") + programFileName_);
}

void FrmCplCal::MenueSample_Click(int index) {
    LoadSample(GeneralSamples(), index);
}
void FrmCplCal::MenueTesmorSample_Click(int index) {
    LoadSample(TransformSamples(), index);
}

// An index past the samples loads the first one.
void FrmCplCal::LoadSample(const std::vector<SampleProgram>& samples, int index) {
    const std::size_t k = index >= 0 && static_cast<std::size_t>(index) < samples.size()
                              ? static_cast<std::size_t>(index)
                              : 0;
    ReplaceText(programText_, QString::fromUtf8(samples[k].text));
    ShowProgramMode();
}

}  // namespace lapdesk
