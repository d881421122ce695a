#include "widgets/slider.h"

#include "widgets/key.h"

#include <QStyleOptionSlider>
#include <QWheelEvent>

namespace cirrava {

Slider::Slider(int maximum) : QScrollBar(Qt::Horizontal) {
    setRange(0, maximum);
    setPageStep(1);
    setInvertedControls(false); // right and up are more, as with the wheel below
    setContextMenuPolicy(Qt::NoContextMenu);
    setFocusPolicy(Qt::StrongFocus);
    set_track(palette().color(QPalette::Window), palette().color(QPalette::Window));
}

void Slider::set_track(const QColor& first, const QColor& last) {
    first_ = first;
    last_ = last;
    update();
}

bool Slider::event(QEvent* event) {
    // Qt would take the pending position for the number now, or go on with the drag later. Nothing
    // but a release makes it forget what was pressed.
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::WindowBlocked) {
        setSliderPosition(value());
        QMouseEvent release(QEvent::MouseButtonRelease, {}, {}, Qt::LeftButton, Qt::NoButton,
                            Qt::NoModifier);
        mouseReleaseEvent(&release);
    }
    return QScrollBar::event(event);
}

// Where the middle of the thumb stands at a number, the track has the number's colour.
void Slider::paintEvent(QPaintEvent*) {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const auto box_of = [&](QStyle::SubControl part) {
        return QRectF(style()->subControlRect(QStyle::CC_ScrollBar, &option, part, this));
    };
    const QRectF groove = box_of(QStyle::SC_ScrollBarGroove);
    const QRectF thumb = box_of(QStyle::SC_ScrollBarSlider);
    const QPointF half_thumb(thumb.width() / 2, 0);
    QLinearGradient track(groove.topLeft() + half_thumb, groove.topRight() - half_thumb);
    track.setStops({{0, first_}, {1, last_}});

    QPainter painter(this);
    const QColor face = palette().color(QPalette::Button);
    paint_key(painter, rect(), track, palette().color(QPalette::Mid));
    for (const bool left : {true, false}) {
        const auto part = left ? QStyle::SC_ScrollBarSubLine : QStyle::SC_ScrollBarAddLine;
        const bool down = repeatAction() == (left ? SliderSingleStepSub : SliderSingleStepAdd);
        QStyleOption arrow = option;
        arrow.rect = box_of(part).toRect();
        paint_key(painter, arrow.rect, down ? face.darker(125) : face,
                  palette().color(QPalette::Mid), down ? 2 : 1);
        style()->drawPrimitive(left ? QStyle::PE_IndicatorArrowLeft
                                    : QStyle::PE_IndicatorArrowRight,
                               &arrow, &painter, this);
    }
    paint_edge(painter, thumb, face, isSliderDown() ? 4 : 3);
    paint_edge(painter, thumb, palette().color(QPalette::ButtonText));
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
