#include "widgets/button.h"

#include "widgets/in_reach.h"
#include "widgets/key.h"

#include <QKeyEvent>

namespace cirrava {

void Button::set_face(const QColor& face) {
    face_ = face;
    update();
}

QRect Button::caption_box() const {
    constexpr QMargins margins(3, 3, 3, 3);
    return rect() - margins;
}

// With the modal window goes what was pressed behind it.
bool Button::event(QEvent* event) {
    if (event->type() == QEvent::WindowUnblocked)
        setDown(false);
    return QPushButton::event(event);
}

// Qt makes a screen reader's press a click a while later. By then the button may be out of reach.
void Button::timerEvent(QTimerEvent* event) {
    const QSignalBlocker silence(isDown() && in_reach(*this) ? nullptr : this);
    QPushButton::timerEvent(event);
}

void Button::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor face = face_.isValid() ? face_ : palette().color(QPalette::Button);
    const bool stands_out = isDefault() || (isEnabled() && underMouse());
    paint_key(painter, rect(), isDown() ? face.darker(125) : face,
              palette().color(stands_out ? QPalette::Highlight : QPalette::Mid),
              isDown() || isDefault() ? 2 : 1);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(caption_box(), Qt::AlignCenter | Qt::TextDontClip | Qt::TextWordWrap, text());
}

// Without this, Enter would press buttons in dialogs only.
void Button::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

} // namespace cirrava
