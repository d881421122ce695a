#pragma once

#include <QPainter>
#include <QPainterPath>

namespace cirrava {

// Paints so many lines along the inside of `box`. Each is about a pixel wide and of whole device
// pixels.
inline void paint_edge(QPainter& painter, const QRectF& box, const QColor& colour, int lines = 1) {
    const double device_pixels = painter.device()->devicePixelRatioF(); // to a pixel
    const double width = lines * qMax(1, qRound(device_pixels)) / device_pixels;
    QPainterPath edge;
    edge.addRect(box);
    edge.addRect(box.adjusted(width, width, -width, -width)); // which is left out
    painter.fillPath(edge, colour);
}

// Paints what is pressed like a button: a flat face within an edge of so many lines.
inline void paint_key(QPainter& painter, const QRectF& box, const QBrush& face, const QColor& edge,
                      int lines = 1) {
    painter.fillRect(box, face);
    paint_edge(painter, box, edge, lines);
}

} // namespace cirrava
