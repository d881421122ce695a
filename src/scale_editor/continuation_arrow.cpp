#include "scale_editor/continuation_arrow.h"

#include <QPainter>
#include <QPainterPath>

namespace cirrava {

void ContinuationArrow::paintEvent(QPaintEvent*) {
    // The arrow goes down and then right, on a field 12 wide and 14 high in the middle of the box.
    QPainterPath shaft({2, 1});
    shaft.lineTo(2, 5);
    shaft.quadTo({2, 9}, {6, 9});
    const QPolygonF head{{6, 5}, {6, 13}, {11, 9}};

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double zoom = width() / 17.0; // which its box has at 96 dots per inch
    painter.translate(width() / 2.0, height() / 2.0);
    painter.scale(zoom, zoom);
    painter.translate(-6, -7);
    painter.setPen(QPen(Qt::red, 2, Qt::SolidLine, Qt::FlatCap));
    painter.drawPath(shaft);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::red);
    painter.drawPolygon(head);
}

} // namespace cirrava
