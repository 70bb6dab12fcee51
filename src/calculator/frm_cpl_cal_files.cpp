// Program files and sample programs in the calculator window.
#include <QFileInfo>
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

// A file that could not be read leaves the text and its name as they were.
void FrmCplCal::MenueReadProgram_Click() {
    if (!ConfirmDiscard()) return;
    QString name = programFileName_;
    if (!SetFileNameCAL(name, kOpenProgramDialog)) return;
    ReadTextFile(name, programText_);
    if (files_.fileErrorText().isEmpty()) {
        programFileName_ = name;
        MarkProgramSaved();
    }
    programText_->setFocus();
    ShowFileOutcome(QStringLiteral("読み込みました: ") + name);
}

void FrmCplCal::MenueWriteProgram_Click() {
    QString name = programFileName_;
    if (!SetFileNameCAL(name, kSaveProgramDialog)) return;
    programFileName_ = name;
    WriteTextFile(name, programText_);
    if (files_.fileErrorText().isEmpty()) MarkProgramSaved();
    ShowFileOutcome(QStringLiteral("保存しました: ") + name);
}

// Without a current file there is nothing to overwrite: ask for a name.
void FrmCplCal::MenueWriteOverProgram_Click() {
    if (programFileName_.isEmpty()) {
        MenueWriteProgram_Click();
        return;
    }
    WriteTextFile(programFileName_, programText_);
    if (files_.fileErrorText().isEmpty()) MarkProgramSaved();
    ShowFileOutcome(QStringLiteral("保存しました: ") + programFileName_);
}

bool FrmCplCal::ConfirmDiscard() {
    if (!programText_->document()->isModified() || programText_->document()->isEmpty()) {
        return true;
    }
    const QMessageBox::StandardButton answer = dialogs_->Ask(
        this, windowTitle(), QStringLiteral("プログラムは変更されています。保存しますか"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    if (answer == QMessageBox::Discard) return true;
    if (answer != QMessageBox::Save) return false;
    MenueWriteOverProgram_Click();
    return !programText_->document()->isModified();
}

void FrmCplCal::MarkProgramSaved() {
    programText_->document()->setModified(false);
    ShowTitle();
}

// The file the text belongs to ("無題" for none: a new text or a sample),
// and a mark while it differs from that file.
void FrmCplCal::ShowTitle() {
    const QString name = programFileName_.isEmpty() ? QStringLiteral("無題")
                                                    : QFileInfo(programFileName_).fileName();
    setWindowTitle(QStringLiteral("複素数計算機 - ") + name + QStringLiteral("[*]"));
    setWindowModified(programText_->document()->isModified());
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
    ShowTitle();
}

void FrmCplCal::MenueSample_Click(int index) {
    LoadSample(GeneralSamples(), index);
}
void FrmCplCal::MenueTesmorSample_Click(int index) {
    LoadSample(TransformSamples(), index);
}

// An index past the samples loads the first one. A sample belongs to no
// file: saving it asks for a name, so it never lands on the user's program.
void FrmCplCal::LoadSample(const std::vector<SampleProgram>& samples, int index) {
    if (!ConfirmDiscard()) return;
    const std::size_t k = index >= 0 && static_cast<std::size_t>(index) < samples.size()
                              ? static_cast<std::size_t>(index)
                              : 0;
    ReplaceText(programText_, QString::fromUtf8(samples[k].text));
    programFileName_.clear();
    MarkProgramSaved();
    ShowProgramMode();
}

}  // namespace lapdesk
