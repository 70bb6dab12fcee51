// The modal questions and file dialogs of the calculator window, behind one
// interface so that scripted answers can stand in for a person.
#pragma once

#include <QMessageBox>
#include <QString>

class QWidget;

namespace lapdesk {

enum class FileDialogKind { Open, Save };

class CalculatorDialogs {
  public:
    virtual ~CalculatorDialogs() = default;

    // A message box with a question mark icon and the given buttons.
    virtual QMessageBox::StandardButton Ask(QWidget* parent, const QString& title,
                                            const QString& text,
                                            QMessageBox::StandardButtons buttons) = 0;
    // The chosen file name, or "" when the dialog was cancelled. The dialog
    // opens at initialPath (a folder, or a file in it) with selectedFilter,
    // one entry of filter, chosen. Overwriting is confirmed by the caller,
    // not by the dialog.
    virtual QString ChooseFile(QWidget* parent, FileDialogKind kind, const QString& title,
                               const QString& initialPath, const QString& filter,
                               const QString& selectedFilter) = 0;
};

// The real dialogs.
class QtCalculatorDialogs : public CalculatorDialogs {
  public:
    QMessageBox::StandardButton Ask(QWidget* parent, const QString& title, const QString& text,
                                    QMessageBox::StandardButtons buttons) override;
    QString ChooseFile(QWidget* parent, FileDialogKind kind, const QString& title,
                       const QString& initialPath, const QString& filter,
                       const QString& selectedFilter) override;
};

}  // namespace lapdesk
