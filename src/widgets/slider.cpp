#include "widgets/slider.h"

#include <QWheelEvent>

namespace cirrava {

Slider::Slider(int maximum) : QScrollBar(Qt::Horizontal) {
    setRange(0, maximum);
    setPageStep(1);
    setInvertedControls(false); // right and up are more, for keys and wheel
    setContextMenuPolicy(Qt::NoContextMenu);
    setFocusPolicy(Qt::StrongFocus);
}

bool Slider::event(QEvent* event) {
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::WindowBlocked)
        give_up_drag();
    return QScrollBar::event(event);
}

// Qt would take the pending position for the number now, or go on with the drag later.
void Slider::give_up_drag() {
    setSliderPosition(value());
    QMouseEvent release(QEvent::MouseButtonRelease, {}, {}, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    mouseReleaseEvent(&release);
}

void Slider::wheelEvent(QWheelEvent* event) {
    constexpr int notch = QWheelEvent::DefaultDeltasPerStep; // finer wheels send parts of it
    const QPoint turn = event->angleDelta();
    turned_ += turn.y() - turn.x(); // up and right are more
    const int notches = turned_ / notch;
    turned_ %= notch;
    setValue(value() + notches);
    event->accept();
}

} // namespace cirrava
