#include "calculator/file_name_chooser.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "calculator/calculator_dialogs.h"
#include "calculator/program_files.h"

namespace lapdesk {

bool FileNameChooser::Choose(QWidget* parent, QString& fileName, std::int16_t mode) {
    if (mode != kOpenProgramDialog && mode != kSaveProgramDialog) return false;
    const bool saving = mode == kSaveProgramDialog;
    const QString chosen =
        dialogs_.ChooseFile(parent, saving ? FileDialogKind::Save : FileDialogKind::Open,
                            saving ? QStringLiteral("プログラムファイルを保存")
                                   : QStringLiteral("プログラムファイルを開く"),
                            InitialPath(fileName), DialogFilter(QString::fromLatin1(kFileFilter)));
    if (chosen.isEmpty()) {
        fileErrorText_ = QStringLiteral("キャンセルされました");
        return false;
    }
    if (saving && QFile(chosen).open(QIODevice::ReadOnly)) {
        fileErrorText_ = QStringLiteral("ファイルは既に有ります");
        const auto answer = dialogs_.Ask(parent, QString(),
                                         QStringLiteral("同名のファイルが有ります上書きしますか"),
                                         QMessageBox::Ok | QMessageBox::Cancel);
        if (answer != QMessageBox::Ok) return false;
    }
    lastDirectory_ = QFileInfo(chosen).path();
    fileName = chosen;
    return true;
}

// The given name's folder when it has one, else the last folder used, else
// the program's own folder.
QString FileNameChooser::InitialPath(const QString& fileName) {
    if (appDirectory_.isEmpty()) appDirectory_ = QCoreApplication::applicationDirPath();
    const QFileInfo info(fileName);
    const bool hasFolder = fileName.contains('/');
    const QString folder = hasFolder                   ? info.path()
                           : !lastDirectory_.isEmpty() ? lastDirectory_
                                                       : appDirectory_;
    return QDir(folder).filePath(info.fileName());
}

}  // namespace lapdesk
