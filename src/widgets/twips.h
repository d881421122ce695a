#pragma once

#include <QRect>

namespace cirrava {

// A rectangle in twips, 1440 to the inch, from the top left of its window's client area.
struct TwipRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

// `rect` in the pixels of a window with `dpi` logical dots per inch (15 twips to a pixel at 96).
// Edges are rounded, not sizes, so that rectangles that touch in twips touch in pixels; a thin one
// is at least a pixel wide and high.
inline QRect to_pixels(const TwipRect& rect, int dpi) {
    const auto pixels = [dpi](int twips) { return qRound(twips * dpi / 1440.0); };
    const int left = pixels(rect.left);
    const int top = pixels(rect.top);
    return {left, top, qMax(1, pixels(rect.left + rect.width) - left),
            qMax(1, pixels(rect.top + rect.height) - top)};
}

} // namespace cirrava
