// Where the calculator window opens the first time: beside the transform
// window, so that it covers neither the plot nor the commands.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace lapdesk {

struct WindowPlacement {
    QPoint main;    // the transform window's frame, moved only when needed
    QPoint beside;  // the calculator's frame
};

// Right of the main frame when there is room on the screen, else left of it;
// when neither side has room but the two fit side by side, the main window
// moves over to make room; otherwise the main window goes to the screen's
// left edge and the other window to its right edge, covering as little of
// the main window as the screen allows (its right side, where the commands
// are, not the plot).
WindowPlacement PlaceBeside(const QRect& mainFrame, const QSize& otherFrame, const QRect& screen,
                            int gap);

}  // namespace lapdesk
