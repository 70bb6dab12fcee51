// Scripted answers for the windows' question boxes and file dialogs, so
// widget tests never wait on a real dialog, and readable Qt strings in
// failure messages.
#pragma once

#include <gtest/gtest.h>

#include <QStringList>
#include <deque>
#include <memory>
#include <ostream>

#include "calculator/calculator_dialogs.h"

inline void PrintTo(const QString& text, std::ostream* os) {
    *os << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QStringList& list, std::ostream* os) {
    *os << '[' << list.join(QStringLiteral(" | ")).toStdString() << ']';
}

namespace lapdesk::testing {

struct Script {
    std::deque<QMessageBox::StandardButton> answers;
    QStringList questions;  // the question texts ("title: text" with recordTitles)
    bool recordTitles = false;
    std::deque<QString> files;  // the names the file dialogs return, in order
    QStringList dialogTitles;
    QStringList initialPaths;
    QStringList selectedFilters;
    QStringList filterLists;  // the whole filter list of each dialog
};

class ScriptedDialogs : public CalculatorDialogs {
  public:
    explicit ScriptedDialogs(std::shared_ptr<Script> script) : script_(std::move(script)) {}
    QMessageBox::StandardButton Ask(QWidget* parent, const QString& title, const QString& text,
                                    QMessageBox::StandardButtons buttons) override;
    QString ChooseFile(QWidget* parent, FileDialogKind kind, const QString& title,
                       const QString& initialPath, const QString& filter,
                       const QString& selectedFilter) override;

  private:
    std::shared_ptr<Script> script_;
};

}  // namespace lapdesk::testing
