#pragma once

#include <QScreen>

namespace cirrava {

// The largest client area, in pixels, that a window can have on `screen`.
inline QSize room_on(const QScreen& screen) {
    constexpr QSize frame(10, 40); // about what window managers put around it
    return screen.availableSize() - frame;
}

} // namespace cirrava
