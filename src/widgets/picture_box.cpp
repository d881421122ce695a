#include "widgets/picture_box.h"

#include "widgets/sunken_border.h"

#include <QPainter>

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
    QPainter painter(this);
    painter.setClipRect(contentsRect());
    painter.drawImage(QRectF(contentsRect().topLeft(), image_.size() * zoom_), image_);
    painter.setClipping(false);
    QFrame::paintEvent(event);
}

} // namespace cirrava
