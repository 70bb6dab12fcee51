#include "transform/window/window_placement.h"

#include <algorithm>

namespace lapdesk {

namespace {

// The top that keeps a window of this height on the screen, near `top`.
int TopOnScreen(int top, int height, const QRect& screen) {
    return std::max(screen.top(), std::min(top, screen.bottom() + 1 - height));
}

}  // namespace

WindowPlacement PlaceBeside(const QRect& mainFrame, const QSize& otherFrame, int minWidth,
                            const QRect& screen, int gap) {
    const int room = screen.width() - mainFrame.width() - gap;
    const int width = std::min(otherFrame.width(), std::max(minWidth, room));
    WindowPlacement place{mainFrame.topLeft(), {}, width};
    const int top = TopOnScreen(mainFrame.top(), otherFrame.height(), screen);
    if (mainFrame.right() + gap + width <= screen.right()) {
        place.beside = {mainFrame.right() + 1 + gap, top};
    } else if (mainFrame.left() - gap - width >= screen.left()) {
        place.beside = {mainFrame.left() - gap - width, top};
    } else if (width <= room) {
        const int left = screen.left() + (room - width) / 2;
        place.main.setX(left);
        place.beside = {left + mainFrame.width() + gap, top};
    } else {
        place.main.setX(std::max(screen.left(), screen.right() + 1 - mainFrame.width()));
        place.beside = {screen.left(), top};
    }
    return place;
}

}  // namespace lapdesk
