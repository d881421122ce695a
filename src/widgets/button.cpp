#include "widgets/button.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace cirrava {

void Button::set_face(const QColor& face) {
    if (face == face_)
        return;
    face_ = face;
    update();
}

QRect Button::caption_box() const {
    constexpr QMargins margins(3, 3, 3, 3);
    return rect() - margins;
}

void Button::paintEvent(QPaintEvent*) {
    QStyleOptionButton option;
    initStyleOption(&option);
    QStylePainter painter(this);
    if (face_.isValid())
        paint_face(painter, isDown() ? face_.darker(125) : face_);
    else
        painter.drawControl(QStyle::CE_PushButtonBevel, option);
    const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    painter.setPen(palette().color(group, QPalette::ButtonText));
    painter.drawText(caption_box(), Qt::AlignCenter | Qt::TextDontClip | Qt::TextWordWrap, text());
}

// Without this, Enter would press buttons in dialogs only.
void Button::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

// Paints the face and a fine outline around it, which leaves out the corners.
void Button::paint_face(QStylePainter& painter, const QColor& colour) const {
    const QColor outline = palette().color(QPalette::Window).darker(170);
    painter.fillRect(rect().adjusted(1, 0, -1, 0), outline);
    painter.fillRect(rect().adjusted(0, 1, 0, -1), outline);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), colour);
}

} // namespace cirrava
