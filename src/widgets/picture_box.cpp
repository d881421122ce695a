#include "widgets/picture_box.h"

#include "widgets/focus_outline.h"
#include "widgets/sunken_border.h"

#include <QStylePainter>

namespace cirrava {

PictureBox::PictureBox() {
    give_sunken_border(*this);
    setFocusPolicy(Qt::TabFocus);
}

void PictureBox::show_image(const QImage& image) {
    image_ = image;
    update();
}

void PictureBox::paintEvent(QPaintEvent* event) {
    QStylePainter painter(this);
    painter.setClipRect(contentsRect());
    painter.drawImage(QRect(contentsRect().topLeft(), image_.size()), image_);
    painter.setClipping(false);
    QFrame::paintEvent(event);
    paint_focus_outline(painter, *this, palette().color(QPalette::Window));
}

} // namespace cirrava
