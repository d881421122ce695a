#include "platform/twips.h"

namespace cirrava {

namespace {

int pixels(int twips, int dpi) {
    return qRound(twips * dpi / 1440.0);
}

} // namespace

QRect to_pixels(const Place& place, int dpi) {
    const QPoint top_left{pixels(place.left, dpi), pixels(place.top, dpi)};
    const QPoint past_end{pixels(place.left + place.width, dpi),
                          pixels(place.top + place.height, dpi)};
    return {top_left, past_end - QPoint{1, 1}};
}

} // namespace cirrava
