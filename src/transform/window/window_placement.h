// Where the calculator window opens the first time: beside the transform
// window, so that it never covers the transform window's parameters,
// commands or status line.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace lapdesk {

struct WindowFrames {
    QRect main;         // the transform window's frame
    int mainMinWidth;   // the least width it can be given
    QSize other;        // the calculator's frame
    int otherMinWidth;  // the least width it can be given
};

struct WindowPlacement {
    QPoint main;      // the transform window's frame, moved only when needed
    int mainWidth;    // its frame width, narrowed only when needed
    QPoint beside;    // the calculator's frame
    int besideWidth;  // its frame width, narrowed to fit beside
};

// Right of the main frame when there is room on the screen, else left of it;
// when neither side has room but the two fit side by side (the other window
// narrowed first, then the main window, each no less than its least width),
// the main window moves over to make room. Otherwise the main window goes to
// the screen's right edge and the other window to its left edge: it covers
// the left of the plot, never the commands on the main window's right.
WindowPlacement PlaceBeside(const WindowFrames& frames, const QRect& screen, int gap);

}  // namespace lapdesk
