// The transform window's accuracy features: the panel beside the parameters,
// the run after the program made the data, and the CSV export.
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QProgressBar>

#include "calculator/frm_cpl_cal.h"
#include "fileio/text_file.h"
#include "transform/accurate/accuracy_table.h"
#include "transform/window/accuracy/accuracy_view.h"
#include "transform/window/tesmor_form.h"

namespace lapdesk {

namespace {

// The same name with another suffix, in the same folder.
QString WithSuffix(const QString& path, const char* suffix) {
    const QFileInfo info(path);
    return info.dir().filePath(info.completeBaseName() + QLatin1Char('.') +
                               QString::fromLatin1(suffix));
}

}  // namespace

QWidget* TesmorForm::BuildAccuracyPanel() {
    accuracy_ = new AccuracyView(scrn_, this);
    return accuracy_->Panel();
}

void TesmorForm::AddAccuracyMenuItem(QMenu* file) {
    menueAccuracyCsv_ = MakeAction(file, "MenueAccuracyCsv", QStringLiteral("精度データCSV出力"));
    menueAccuracyCsv_->setToolTip(
        QStringLiteral("t, FFT の結果, その誤差帯, 高精度の結果, その誤差見積りを CSV で保存"));
    connect(menueAccuracyCsv_, &QAction::triggered, this, &TesmorForm::MenueAccuracyCsv_Click);
}

// The check, the band and (when chosen) the accurate inversion, then their
// layers over the result just drawn. The calculator still counts as running,
// so its stop button ends this too, as do this window's.
void TesmorForm::RunAccuracy(std::optional<FftErrorBand> bandMade) {
    SetBusy(true);
    runProgress_->setRange(0, 0);  // no end known beforehand: a moving bar
    accuracy_->RunAfterProgram(
        driver_, calculator_->interpreter(), [this](const QString& text) { SetStatus(text); },
        std::move(bandMade));
    SetBusy(false);
    if (accuracy_->Report()->stopped) EndRunStatus(Outcome::Failure(std::string()));
    accuracy_->Decorate(driver_);
}

// A CSV file of its own: the name of the data file beside it with ".csv",
// the CSV filter, ".csv" added to a bare name, and a question before an
// existing file is replaced.
void TesmorForm::MenueAccuracyCsv_Click() {
    if (!accuracy_->Report()) {
        SetStatus(QStringLiteral("精度データがありません"));
        return;
    }
    const QString suggested =
        fileName_.isEmpty() ? QStringLiteral("accuracy.csv") : WithSuffix(fileName_, "csv");
    QString path = calculator_->FileNames().ChooseFile(
        this, FileDialogKind::Save, QStringLiteral("精度データを CSV で保存"), suggested,
        QStringLiteral("CSV(*.csv)"), QStringLiteral("CSV(*.csv);;All(*.*)"));
    if (!path.isEmpty() && QFileInfo(path).suffix().isEmpty()) path += QStringLiteral(".csv");
    if (path.isEmpty() || !ConfirmReplace(path)) return;
    const WriteResult written =
        WriteBytesAtomic(path.toStdString(), AccuracyCsv(driver_, *accuracy_->Report()));
    SetStatus(written.ok ? QStringLiteral("精度データ書込み成功")
                         : QStringLiteral("精度データ書込み失敗"));
}

}  // namespace lapdesk
