#pragma once

#include <QPainter>

namespace cirrava {

// Paints what is pressed like a button: a flat face within an edge of so many lines. Each line is
// about a pixel wide and of whole device pixels.
inline void paint_key(QPainter& painter, const QRectF& box, const QBrush& face, const QColor& edge,
                      int lines = 1) {
    const double device_pixels = painter.device()->devicePixelRatioF(); // to a pixel
    const double width = lines * qRound(device_pixels) / device_pixels;
    painter.fillRect(box, edge);
    painter.fillRect(box.adjusted(width, width, -width, -width), face);
}

} // namespace cirrava
