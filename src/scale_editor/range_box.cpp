#include "scale_editor/range_box.h"

#include <QKeyEvent>

namespace cirrava {

void RangeBox::keyPressEvent(QKeyEvent* event) {
    constexpr int page = 10;
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        return emit colour_asked();
    switch (event->keyCombination().toCombined() & ~Qt::KeypadModifier) {
    case Qt::Key_Up:
    case Qt::Key_Right:
        return emit stepped(1);
    case Qt::Key_Down:
    case Qt::Key_Left:
        return emit stepped(-1);
    case Qt::Key_PageUp:
        return emit stepped(page);
    case Qt::Key_PageDown:
        return emit stepped(-page);
    case (Qt::CTRL | Qt::Key_Home).toCombined():
        return emit sent_to_coldest();
    case (Qt::CTRL | Qt::Key_End).toCombined():
        return emit sent_to_warmest();
    default:
        QLineEdit::keyPressEvent(event);
    }
}

} // namespace cirrava
