// The transform window's files: reading data through the import wizard,
// saving data and result with the overwrite question, and the calculator's
// program files.
#include <QCheckBox>
#include <QFileInfo>
#include <QPlainTextEdit>

#include "calculator/frm_cpl_cal.h"
#include "calculator/program_files.h"
#include "importer/read_file_wisard.h"
#include "transform/ldt_file.h"
#include "transform/window/accuracy/accuracy_view.h"
#include "transform/window/tesmor_form.h"

namespace lapdesk {

namespace {

const QString kReadFailed = QStringLiteral("データ読込み失敗");
// Written so: this failure text differs from the "データ書込み失敗" of other
// windows.
const QString kWriteFailed = QStringLiteral("データ書きみ失敗");

// Data files end in .Ldt unless the user named another suffix.
QString WithDataSuffix(const QString& path) {
    return QFileInfo(path).suffix().isEmpty() ? path + QStringLiteral(".Ldt") : path;
}

}  // namespace

QString TesmorForm::ChooseDataFile(FileDialogKind kind, const QString& title) {
    return calculator_->FileNames().ChooseFile(this, kind, title, fileName_,
                                               QStringLiteral("Data(*.Ldt)"));
}

// The file, then the wizard's answers (parameter line, first data line,
// first column, delimiter), then the read, which transforms at once.
void TesmorForm::ReadLapData() {
    SetStatus(QString());
    const QString path =
        ChooseDataFile(FileDialogKind::Open, QStringLiteral("データファイルを開く"));
    if (path.isEmpty()) {
        SetStatus(kReadFailed);
        return;
    }
    fileName_ = path;
    WisardLabels& answers = wisard_->labels();
    answers.FileNameLb = path;
    // Only the first columns the reader can read are offered.
    answers.MaxColumnLb = kLastFirstColumn;
    if (!wisard_->ShowModal()) {
        SetStatus(kReadFailed);
        if (!wisard_->ReadFailure().isEmpty()) ShowFailure(wisard_->ReadFailure().toStdString());
        return;
    }
    const ImportAnswers where{answers.SpecialLb, answers.TopRowLb, answers.TopColumnLb,
                              answers.DelmLb.toStdString()};
    accuracy_->Forget();  // file data have no F to check
    const Outcome read = lapdesk::ReadLapData(driver_, path.toStdString(), where);
    if (read.ok) {
        dataProgram_.clear();
        ShowNewResult();
    } else {
        ShowFailure(read.reason);
    }
}

// Saves the samples, the result and, for data made by the program, the
// program; an existing file is replaced only when the user says OK.
void TesmorForm::WriteTransformFile() {
    SetStatus(QString());
    // Refused before a name is asked for: the y column would not belong to
    // the samples and parameters beside it.
    if (const Outcome allowed = CanWriteTransformFile(driver_); !allowed.ok) {
        SetStatus(kWriteFailed);
        ShowFailure(allowed.reason);
        return;
    }
    if (!ConfirmResultWrite()) {
        SetStatus(kWriteFailed);
        return;
    }
    QString path = ChooseDataFile(FileDialogKind::Save, QStringLiteral("データファイルを保存"));
    if (!path.isEmpty()) path = WithDataSuffix(path);
    if (!path.isEmpty() && !ConfirmReplace(path)) path.clear();
    if (path.isEmpty()) {
        SetStatus(kWriteFailed);
        return;
    }
    fileName_ = path;
    const Outcome written = lapdesk::WriteTransformFile(driver_, path.toStdString(),
                                                        calculator_->interpreter().ProgramText());
    if (!written.ok) ShowFailure(written.reason);
}

// Every save that would replace a file asks first.
bool TesmorForm::ConfirmReplace(const QString& path) {
    return !QFileInfo::exists(path) ||
           dialogs_->Ask(this, QStringLiteral("ファイルは既に有ります"),
                         QStringLiteral("同名のファイルが有ります上書きしますか"),
                         QMessageBox::Ok | QMessageBox::Cancel) == QMessageBox::Ok;
}

// The file holds the data, the result and the calculator's present program.
// When that program is not the one that made the data, or the result text
// was edited (the file is written from the data, not from the text), the
// user says whether to go on.
bool TesmorForm::ConfirmResultWrite() {
    const auto ask = [this](const QString& text) {
        return dialogs_->Ask(this, QStringLiteral("結果保存"), text,
                             QMessageBox::Ok | QMessageBox::Cancel) == QMessageBox::Ok;
    };
    if (check1_->isChecked() && text1_->document()->isModified() &&
        !ask(QStringLiteral("「編集」で変えた結果テキストは保存されません。"
                            "計算したデータと結果を保存しますか"))) {
        return false;
    }
    const bool programData = driver_.Source() == DataSource::Program;
    const QString program = QString::fromStdString(calculator_->interpreter().ProgramText());
    return !programData || program == dataProgram_ ||
           ask(QStringLiteral("プログラムがデータを作った時から変わっています。"
                              "今のプログラムをデータと一緒に保存しますか"));
}

// ProgramReadAndRun: the calculator reads the program file into its editor.
void TesmorForm::MenueProgramRead_Click() {
    OpenCalculator();
    calculator_->MenueReadProgram_Click();
}

// ProgRamWriteWhichUsed: the calculator saves the program it holds.
void TesmorForm::MenueProgramWrite_Click() {
    calculator_->MenueWriteProgram_Click();
}

}  // namespace lapdesk
