#include "widgets/swatch.h"

#include "widgets/spoken_colour.h"
#include "widgets/sunken_border.h"

#include <QPainter>

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
    setToolTip(colour_numbers(colour));
    update();
}

void Swatch::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(contentsRect(), colour_);
    QFrame::paintEvent(event);
}

} // namespace cirrava
