#include "widgets/twips.h"

namespace cirrava {

namespace {

int pixels(int twips, int dpi) {
    return qRound(twips * dpi / 1440.0);
}

} // namespace

QRect to_pixels(const TwipRect& rect, int dpi) {
    const QPoint top_left{pixels(rect.left, dpi), pixels(rect.top, dpi)};
    const QPoint past_end{pixels(rect.left + rect.width, dpi), pixels(rect.top + rect.height, dpi)};
    const QPoint bottom_right = past_end - QPoint{1, 1};
    return {top_left,
            QPoint{qMax(top_left.x(), bottom_right.x()), qMax(top_left.y(), bottom_right.y())}};
}

} // namespace cirrava
