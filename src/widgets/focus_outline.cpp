#include "widgets/focus_outline.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

namespace cirrava {

namespace {

// Paints the inner edge of `box`, `width` wide.
void paint_edge(QPainter& painter, const QRectF& box, double width, Qt::GlobalColor colour) {
    const QSizeF across(box.width(), width);
    const QSizeF down(width, box.height());
    painter.fillRect({box.topLeft(), across}, colour);
    painter.fillRect({box.bottomLeft() - QPointF(0, width), across}, colour);
    painter.fillRect({box.topLeft(), down}, colour);
    painter.fillRect({box.topRight() - QPointF(width, 0), down}, colour);
}

} // namespace

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
    const double device_pixels = devicePixelRatioF(); // to a pixel
    const double line = qRound(device_pixels) / device_pixels;
    QPainter painter(this);
    paint_edge(painter, box, line, Qt::black);
    paint_edge(painter, box.adjusted(line, line, -line, -line), line, Qt::white);
}

} // namespace cirrava
