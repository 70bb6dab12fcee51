#include "transform/window/window_placement.h"

#include <algorithm>

namespace lapdesk {

namespace {

// The top that keeps a window of this height on the screen, near `top`.
int TopOnScreen(int top, int height, const QRect& screen) {
    return std::max(screen.top(), std::min(top, screen.bottom() + 1 - height));
}

}  // namespace

WindowPlacement PlaceBeside(const WindowFrames& frames, const QRect& screen, int gap) {
    const QRect& main = frames.main;
    const int room = screen.width() - main.width() - gap;
    const int width = std::min(frames.other.width(), std::max(frames.otherMinWidth, room));
    WindowPlacement place{main.topLeft(), main.width(), {}, width};
    const int top = TopOnScreen(main.top(), frames.other.height(), screen);
    const int mainWidth = std::max(frames.mainMinWidth, screen.width() - gap - width);
    if (main.right() + gap + width <= screen.right()) {
        place.beside = {main.right() + 1 + gap, top};
    } else if (main.left() - gap - width >= screen.left()) {
        place.beside = {main.left() - gap - width, top};
    } else if (std::min(main.width(), mainWidth) + gap + width <= screen.width()) {
        place.mainWidth = std::min(main.width(), mainWidth);
        const int left = screen.left() + (screen.width() - place.mainWidth - gap - width) / 2;
        place.main.setX(left);
        place.beside = {left + place.mainWidth + gap, top};
    } else {
        place.main.setX(std::max(screen.left(), screen.right() + 1 - main.width()));
        place.beside = {screen.left(), top};
    }
    return place;
}

}  // namespace lapdesk
