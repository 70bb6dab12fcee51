// Where the calculator window opens the first time: beside the transform
// window, so that it never covers the transform window's parameters,
// commands or status line.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace lapdesk {

struct WindowPlacement {
    QPoint main;      // the transform window's frame, moved only when needed
    QPoint beside;    // the calculator's frame
    int besideWidth;  // the calculator's frame width, narrowed to fit beside
};

// Right of the main frame when there is room on the screen, else left of it;
// when neither side has room but the two fit side by side (the other window
// narrowed, down to minWidth, where that makes them fit), the main window
// moves over to make room. Otherwise the main window goes to the screen's
// right edge and the other window to its left edge: it covers the left of
// the plot, never the commands and the status on the main window's right
// and bottom.
WindowPlacement PlaceBeside(const QRect& mainFrame, const QSize& otherFrame, int minWidth,
                            const QRect& screen, int gap);

}  // namespace lapdesk
