// The transform window's accuracy features: the panel beside the parameters,
// the run after the program made the data, and the CSV export.
#include <QMenu>

#include "calculator/frm_cpl_cal.h"
#include "fileio/text_file.h"
#include "transform/accurate/accuracy_table.h"
#include "transform/window/accuracy/accuracy_view.h"
#include "transform/window/tesmor_form.h"

namespace lapdesk {

QWidget* TesmorForm::BuildAccuracyPanel() {
    accuracy_ = new AccuracyView(scrn_, this);
    return accuracy_->Panel();
}

void TesmorForm::AddAccuracyMenuItem(QMenu* file) {
    QAction* csv = MakeAction(file, "MenueAccuracyCsv", QStringLiteral("精度データCSV出力"));
    csv->setToolTip(
        QStringLiteral("t, FFT の結果, その誤差帯, 高精度の結果, その誤差見積りを CSV で保存"));
    connect(csv, &QAction::triggered, this, &TesmorForm::MenueAccuracyCsv_Click);
}

// The check, the band and (when chosen) the accurate inversion, then their
// layers over the result just drawn. The calculator still counts as running,
// so its stop button ends this too.
void TesmorForm::RunAccuracy() {
    SetBusy(true);
    accuracy_->RunAfterProgram(driver_, calculator_->interpreter(),
                               [this](const QString& text) { SetStatus(text); });
    SetBusy(false);
    accuracy_->Decorate(driver_);
}

void TesmorForm::MenueAccuracyCsv_Click() {
    if (!accuracy_->Report()) {
        SetStatus(QStringLiteral("精度データがありません"));
        return;
    }
    const QString path =
        ChooseDataFile(FileDialogKind::Save, QStringLiteral("精度データを CSV で保存"));
    if (path.isEmpty()) return;
    const WriteResult written =
        WriteBytesAtomic(path.toStdString(), AccuracyCsv(driver_, *accuracy_->Report()));
    SetStatus(written.ok ? QStringLiteral("精度データ書込み成功")
                         : QStringLiteral("精度データ書込み失敗"));
}

}  // namespace lapdesk
