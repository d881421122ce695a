#pragma once

#include <QRect>

namespace cirrava {

// A box in twips, 1440 to the inch, from the top left of its window's client area.
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

// `place` in the pixels of a window with `dpi` logical dots per inch (15 twips to a pixel at 96).
// Edges are rounded, not sizes, so that boxes that touch in twips touch in pixels.
QRect to_pixels(const Place& place, int dpi);

} // namespace cirrava
