// Where an analysis or run error of the interpreter points in the editor:
// the page and statement its message names, and the editor line each entry
// of the execution list came from.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace lapdesk {

struct ErrorLocation {
    QString page;
    int statement = 0;  // 1-based within the page
};

// Reads "Page: k行目解析エラー" or "Page: k行目実行エラー" from the message's
// first line; nothing for other messages.
std::optional<ErrorLocation> ParseErrorLocation(const QString& message);

// The editor line (0-based) of each statement of the execution list. The
// statements were cut from the lines in order, so each is looked for from
// where the one before ended; -1 for a blank or missing statement.
std::vector<int> MapStatementsToLines(const QStringList& editorLines,
                                      const QStringList& statements);

}  // namespace lapdesk
