#include "widgets/number_bar.h"

#include <QWheelEvent>

namespace cirrava {

NumberBar::NumberBar(int maximum, int value) : QScrollBar(Qt::Horizontal) {
    setRange(0, maximum);
    setValue(value);
    setSingleStep(1);
    setPageStep(1);
    setInvertedControls(false); // right and up are more, for keys and wheel
    setContextMenuPolicy(Qt::NoContextMenu);
    setFocusPolicy(Qt::StrongFocus);
}

void NumberBar::wheelEvent(QWheelEvent* event) {
    constexpr int notch = QWheelEvent::DefaultDeltasPerStep; // finer wheels send parts of it
    const QPoint turn = event->angleDelta();
    turned_ += turn.y() - turn.x(); // up and right are more
    const int notches = turned_ / notch;
    turned_ %= notch;
    setValue(value() + notches);
    event->accept();
}

} // namespace cirrava
