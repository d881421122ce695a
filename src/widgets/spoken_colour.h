#pragma once

#include <QColor>
#include <QString>

namespace cirrava {

// A colour as screen readers say it.
inline QString spoken_colour(const QColor& colour) {
    return QString("red %1, green %2, blue %3")
        .arg(colour.red())
        .arg(colour.green())
        .arg(colour.blue());
}

// A colour as its tooltip tells it: "192, 0, 0".
inline QString colour_numbers(const QColor& colour) {
    return QString("%1, %2, %3").arg(colour.red()).arg(colour.green()).arg(colour.blue());
}

} // namespace cirrava
