#include "calculator/error_location.h"

#include <QRegularExpression>

namespace lapdesk {

std::optional<ErrorLocation> ParseErrorLocation(const QString& message) {
    static const QRegularExpression pattern(QStringLiteral("^(.+): (\\d+)行目(?:解析|実行)エラー"));
    const QString firstLine = message.section(QRegularExpression(QStringLiteral("[\r\n]")), 0, 0);
    const QRegularExpressionMatch match = pattern.match(firstLine);
    if (!match.hasMatch()) return std::nullopt;
    return ErrorLocation{match.captured(1), match.captured(2).toInt()};
}

std::vector<int> MapStatementsToLines(const QStringList& editorLines,
                                      const QStringList& statements) {
    std::vector<int> lines;
    int line = 0;
    qsizetype column = 0;  // where the search for the next statement starts
    for (const QString& statement : statements) {
        const QString wanted = statement.trimmed();
        int found = -1;
        for (int at = line; !wanted.isEmpty() && at < editorLines.size() && found < 0; ++at) {
            const qsizetype pos = editorLines[at].indexOf(wanted, at == line ? column : 0);
            if (pos < 0) continue;
            found = at;
            line = at;
            column = pos + wanted.size();
        }
        lines.push_back(found);
    }
    return lines;
}

}  // namespace lapdesk
