// Program files (*.Prg): plain text in cp932 with CR LF line breaks. The
// program text is kept with CR LF between lines; the editor holds "\n".
#pragma once

#include <QString>

namespace lapdesk {

// The file dialog filter shared by the calculator and the transform window,
// in its "description|pattern|..." form.
inline constexpr const char* kFileFilter =
    "Program(*.Prg)|*.Prg|"
    "Data(*.Ldt)|*.Ldt|"
    "Text(*.Txt)|*.Txt|All(*.*)|*.*";

// The same list as Qt's file dialogs take it ("Program(*.Prg);;...").
QString DialogFilter(const QString& pipeFilter);

QString EditorTextToProgram(const QString& editorText);
QString ProgramToEditorText(const QString& programText);

struct ProgramFileRead {
    bool ok = false;
    QString text;    // the lines joined with CR LF, none after the last
    QString reason;  // why the file could not be read
};
// Reads cp932 or UTF-8.
ProgramFileRead ReadProgramFile(const QString& path);

// Writes the text followed by one CR LF, in cp932, replacing the file only
// when all of it was written. Returns the reason of a failure, or "".
QString WriteProgramFile(const QString& path, const QString& programText);

}  // namespace lapdesk
