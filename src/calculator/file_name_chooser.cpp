#include "calculator/file_name_chooser.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "calculator/calculator_dialogs.h"
#include "calculator/program_files.h"

namespace lapdesk {

namespace {

QString StartingFolder() {
    const QString own = QCoreApplication::applicationDirPath();
    if (QFileInfo(own).isWritable()) return own;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

}  // namespace

bool FileNameChooser::Choose(QWidget* parent, QString& fileName, std::int16_t mode) {
    if (mode != kOpenProgramDialog && mode != kSaveProgramDialog) return false;
    const bool saving = mode == kSaveProgramDialog;
    QString chosen = ChooseFile(parent, saving ? FileDialogKind::Save : FileDialogKind::Open,
                                saving ? QStringLiteral("プログラムファイルを保存")
                                       : QStringLiteral("プログラムファイルを開く"),
                                fileName, QStringLiteral("Program(*.Prg)"));
    if (chosen.isEmpty()) {
        fileErrorText_ = QStringLiteral("キャンセルされました");
        return false;
    }
    if (saving && QFileInfo(chosen).suffix().isEmpty()) chosen += QStringLiteral(".Prg");
    if (saving && QFile(chosen).open(QIODevice::ReadOnly)) {
        fileErrorText_ = QStringLiteral("ファイルは既に有ります");
        const auto answer = dialogs_.Ask(parent, QString(),
                                         QStringLiteral("同名のファイルが有ります上書きしますか"),
                                         QMessageBox::Ok | QMessageBox::Cancel);
        if (answer != QMessageBox::Ok) return false;
    }
    fileName = chosen;
    return true;
}

QString FileNameChooser::ChooseFile(QWidget* parent, FileDialogKind kind, const QString& title,
                                    const QString& fileName, const QString& selectedFilter,
                                    const QString& filterList) {
    const QString filters =
        filterList.isEmpty() ? DialogFilter(QString::fromLatin1(kFileFilter)) : filterList;
    const QString chosen = dialogs_.ChooseFile(parent, kind, title, InitialPath(fileName, kind),
                                               filters, selectedFilter);
    if (!chosen.isEmpty()) lastDirectory_ = QFileInfo(chosen).path();
    return chosen;
}

// The given name's folder when it has one, else the last folder used, else
// the program's own folder, or the user's documents when the program's
// folder cannot be written (an installed program lives in /usr/bin). Only a
// save dialog gets the name as well: in an open dialog it would narrow the
// list to that one file.
QString FileNameChooser::InitialPath(const QString& fileName, FileDialogKind kind) {
    if (appDirectory_.isEmpty()) appDirectory_ = StartingFolder();
    const QFileInfo info(fileName);
    const bool hasFolder = fileName.contains('/');
    const QString folder = hasFolder                   ? info.path()
                           : !lastDirectory_.isEmpty() ? lastDirectory_
                                                       : appDirectory_;
    if (kind == FileDialogKind::Open || info.fileName().isEmpty()) return folder;
    return QDir(folder).filePath(info.fileName());
}

}  // namespace lapdesk
