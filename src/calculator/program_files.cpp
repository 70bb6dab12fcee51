#include "calculator/program_files.h"

#include <QFile>
#include <QStringList>
#include <filesystem>

#include "fileio/text_file.h"

namespace lapdesk {

namespace {

std::filesystem::path ToPath(const QString& path) {
    return std::filesystem::path(QFile::encodeName(path).toStdString());
}

}  // namespace

QString DialogFilter(const QString& pipeFilter) {
    // Descriptions and patterns alternate; Qt reads the pattern from the
    // description's brackets.
    const QStringList parts = pipeFilter.split('|');
    QStringList descriptions;
    for (qsizetype i = 0; i < parts.size(); i += 2)
        descriptions << parts[i];
    return descriptions.join(QStringLiteral(";;"));
}

QString EditorTextToProgram(const QString& editorText) {
    QString text = editorText;
    return text.replace('\n', QStringLiteral("\r\n"));
}

QString ProgramToEditorText(const QString& programText) {
    QString text = programText;
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

ProgramFileRead ReadProgramFile(const QString& path) {
    const LinesResult read = ReadTextLines(ToPath(path));
    if (!read.ok) return {false, {}, QString::fromStdString(read.reason)};
    QStringList lines;
    for (const std::string& line : read.lines)
        lines << QString::fromStdString(line);
    return {true, lines.join(QStringLiteral("\r\n")), {}};
}

QString WriteProgramFile(const QString& path, const QString& programText) {
    const std::string text = (programText + QStringLiteral("\r\n")).toStdString();
    const WriteResult written = WriteTextAtomic(ToPath(path), text);
    return written.ok ? QString() : QString::fromStdString(written.reason);
}

}  // namespace lapdesk
