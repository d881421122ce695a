#include "widgets/focus_outline.h"

#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace cirrava {

void paint_focus_outline(QStylePainter& painter, const QWidget& control, const QColor& ground) {
    if (!control.hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(&control);
    option.rect = control.rect() - focus_margins;
    option.backgroundColor = ground;
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

} // namespace cirrava
