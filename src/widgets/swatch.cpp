#include "widgets/swatch.h"

#include "widgets/focus_outline.h"
#include "widgets/spoken_colour.h"
#include "widgets/sunken_border.h"

#include <QStylePainter>

namespace cirrava {

Swatch::Swatch() {
    give_sunken_border(*this);
    setFocusPolicy(Qt::TabFocus);
}

void Swatch::set_colour(const QColor& colour) {
    if (colour == colour_)
        return;
    colour_ = colour;
    setAccessibleDescription(spoken_colour(colour));
    update();
}

void Swatch::paintEvent(QPaintEvent* event) {
    QStylePainter painter(this);
    painter.fillRect(contentsRect(), colour_);
    QFrame::paintEvent(event);
    paint_focus_outline(painter, *this, colour_);
}

} // namespace cirrava
