// The program file dialogs: the starting folder, the last folder used, the
// overwrite question, and the text of the last file error.
#pragma once

#include <QString>
#include <cstdint>

class QWidget;

namespace lapdesk {

class CalculatorDialogs;
enum class FileDialogKind;

inline constexpr std::int16_t kOpenProgramDialog = 3;
inline constexpr std::int16_t kSaveProgramDialog = 4;

class FileNameChooser {
  public:
    explicit FileNameChooser(CalculatorDialogs& dialogs) : dialogs_(dialogs) {}

    // Mode 3 opens, mode 4 saves (asking before an existing file is
    // overwritten, and adding ".Prg" to a name without a suffix); other
    // modes fail at once. On success the chosen name replaces fileName.
    bool Choose(QWidget* parent, QString& fileName, std::int16_t mode);

    // Any file dialog of the program, with the filter entry that names the
    // command's files (e.g. "Data(*.Ldt)") chosen from the shared filter
    // list, or from the given list (Qt's "A(*.a);;B(*.b)" form) for files of
    // other kinds. Open dialogs start in a folder, save dialogs with the
    // given name in it; both remember the folder of the chosen file. "" when
    // cancelled.
    QString ChooseFile(QWidget* parent, FileDialogKind kind, const QString& title,
                       const QString& fileName, const QString& selectedFilter,
                       const QString& filterList = QString());

    const QString& fileErrorText() const { return fileErrorText_; }
    void SetFileErrorText(const QString& text) { fileErrorText_ = text; }

  private:
    QString InitialPath(const QString& fileName, FileDialogKind kind);

    CalculatorDialogs& dialogs_;
    QString appDirectory_;
    QString lastDirectory_;
    QString fileErrorText_;
};

}  // namespace lapdesk
