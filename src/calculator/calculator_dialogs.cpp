#include "calculator/calculator_dialogs.h"

#include <QFileDialog>

namespace lapdesk {

QMessageBox::StandardButton QtCalculatorDialogs::Ask(QWidget* parent, const QString& title,
                                                     const QString& text,
                                                     QMessageBox::StandardButtons buttons) {
    QString shown = text;
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QMessageBox box(QMessageBox::Question, title, shown, buttons, parent);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

QString QtCalculatorDialogs::ChooseFile(QWidget* parent, FileDialogKind kind, const QString& title,
                                        const QString& initialPath, const QString& filter,
                                        const QString& selectedFilter) {
    QString chosenFilter = selectedFilter;
    if (kind == FileDialogKind::Open) {
        return QFileDialog::getOpenFileName(parent, title, initialPath, filter, &chosenFilter);
    }
    return QFileDialog::getSaveFileName(parent, title, initialPath, filter, &chosenFilter,
                                        QFileDialog::DontConfirmOverwrite);
}

}  // namespace lapdesk
