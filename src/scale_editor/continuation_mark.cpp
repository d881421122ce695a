#include "scale_editor/continuation_mark.h"

#include <QPainter>
#include <QPainterPath>

namespace cirrava {

void ContinuationMark::paintEvent(QPaintEvent*) {
    // Drawn on a field 12 wide and 14 high, in the middle of the box: to the right, then down.
    QPainterPath shaft({1, 2});
    shaft.lineTo(3, 2);
    shaft.quadTo({7, 2}, {7, 6});
    shaft.lineTo(7, 9);
    const QPolygonF head{{3, 8}, {11, 8}, {7, 13}};

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = width() / 17.0;
    painter.translate(width() / 2.0, height() / 2.0);
    painter.scale(scale, scale);
    painter.translate(-6, -7);
    painter.setPen(QPen(Qt::red, 2, Qt::SolidLine, Qt::FlatCap));
    painter.drawPath(shaft);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::red);
    painter.drawPolygon(head);
}

} // namespace cirrava
