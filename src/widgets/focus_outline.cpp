#include "widgets/focus_outline.h"

#include "widgets/key.h"

#include <QApplication>
#include <QStyle>

namespace cirrava {

FocusOutline::FocusOutline(QWidget& window) : QFocusFrame(&window) {
    hide();
    connect(qApp, &QApplication::focusChanged, this, [this, &window](QWidget*, QWidget* now) {
        const bool by_keys = window.testAttribute(Qt::WA_KeyboardFocusChange);
        const bool here = now != nullptr && now->window() == &window;
        setWidget(by_keys && here ? now : nullptr);
    });
}

void FocusOutline::paintEvent(QPaintEvent*) {
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin); // around the control
    const QRectF box = rect().adjusted(margin, margin, -margin, -margin);
    QPainter painter(this);
    paint_edge(painter, box, Qt::white, 3);
    paint_edge(painter, box, Qt::black, 2);
}

} // namespace cirrava
