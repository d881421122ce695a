#include "widgets/picture_box.h"

#include <QPainter>

namespace cirrava {

void PictureBox::show_image(const QImage& image) {
    image_ = image;
    update();
}

void PictureBox::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setClipRect(contentsRect());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, zoom_ < image_.devicePixelRatio());
    painter.drawImage(QRectF(contentsRect().topLeft(), image_.deviceIndependentSize() * zoom_),
                      image_);
    painter.setClipping(false);
    QFrame::paintEvent(event);
}

} // namespace cirrava
