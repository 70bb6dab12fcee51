#include "scripted_dialogs.h"

namespace lapdesk::testing {

QMessageBox::StandardButton ScriptedDialogs::Ask(QWidget*, const QString& title,
                                                 const QString& text,
                                                 QMessageBox::StandardButtons buttons) {
    script_->questions << (script_->recordTitles ? title + QStringLiteral(": ") + text : text);
    if (script_->answers.empty()) {
        ADD_FAILURE() << "unexpected question: " << text.toStdString();
        return QMessageBox::Cancel;
    }
    const QMessageBox::StandardButton answer = script_->answers.front();
    script_->answers.pop_front();
    EXPECT_TRUE(buttons.testFlag(answer)) << "the question offers no such button";
    return answer;
}

QString ScriptedDialogs::ChooseFile(QWidget*, FileDialogKind, const QString& title,
                                    const QString& initialPath, const QString& filter,
                                    const QString& selectedFilter) {
    script_->dialogTitles << title;
    script_->initialPaths << initialPath;
    script_->selectedFilters << selectedFilter;
    EXPECT_TRUE(filter.split(QStringLiteral(";;")).contains(selectedFilter)) << "no such filter";
    script_->filterLists << filter;
    if (script_->files.empty()) return QString();
    const QString file = script_->files.front();
    script_->files.pop_front();
    return file;
}

}  // namespace lapdesk::testing
