// Small rules of the immediate line and its neighbours: history entries and
// their recall, the font zoom gestures, and the Shift/Ctrl state of a mouse
// gesture as one number (1 Shift, 2 Ctrl, 4 Alt, added).
#pragma once

#include <QString>
#include <Qt>

namespace lapdesk {

// The line as typed, " = ", and the caption of kai.
QString HistoryEntry(const QString& line, const QString& kaiCaption);

// The text before the last "=" of an entry, trimmed: the line as typed,
// including any "=" of an assignment. An entry without "=" comes back trimmed.
QString RecallFromHistory(const QString& entry);

// One point smaller with Shift alone, but never below 9 points by shrinking;
// one point larger otherwise.
int ZoomedPointSize(int pointSize, bool shiftOnly);

int ShiftState(Qt::KeyboardModifiers modifiers);

// Shift state of the Shift key alone and of the Ctrl key alone.
inline constexpr int kShiftOnly = 1;
inline constexpr int kCtrlOnly = 2;

}  // namespace lapdesk
