// Captions of the run button and the execution-list menu item, which the
// window switches between and compares against.
#pragma once

#include <QString>

namespace lapdesk {

// The blank between the two characters is the ideographic space U+3000.
inline const QString kRunCaption = QStringLiteral("実　行");
// The status after a run that the stop button ended.
inline const QString kRunInterrupted = QStringLiteral("プログラム実行中断");
inline const QString kBackToProgramCaption = QStringLiteral("プログラム");
inline const QString kShowListCaption = QStringLiteral("実行リスト表示");
inline const QString kShowProgramCaption = QStringLiteral("プログラム表示");

}  // namespace lapdesk
