#pragma once

#include <QColor>
#include <QString>

namespace cirrava {

// A colour as screen readers say it: "255, 0, 0" for red.
inline QString spoken_colour(const QColor& colour) {
    return QString("%1, %2, %3").arg(colour.red()).arg(colour.green()).arg(colour.blue());
}

} // namespace cirrava
