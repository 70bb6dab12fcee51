#include "calculator/immediate_rules.h"

namespace lapdesk {

QString HistoryEntry(const QString& line, const QString& kaiCaption) {
    return line + QStringLiteral(" = ") + kaiCaption;
}

QString RecallFromHistory(const QString& entry) {
    const qsizetype equals = entry.lastIndexOf('=');
    return (equals < 0 ? entry : entry.left(equals)).trimmed();
}

int ZoomedPointSize(int pointSize, bool shiftOnly) {
    if (!shiftOnly) return pointSize + 1;
    return pointSize > 9 ? pointSize - 1 : pointSize;
}

int ShiftState(Qt::KeyboardModifiers modifiers) {
    int state = 0;
    if (modifiers & Qt::ShiftModifier) state |= 1;
    if (modifiers & Qt::ControlModifier) state |= 2;
    if (modifiers & Qt::AltModifier) state |= 4;
    return state;
}

}  // namespace lapdesk
