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
    const QSizeF size = image_.deviceIndependentSize() * zoom_;
    const QSize device_size = (size * devicePixelRatioF()).toSize();
    const bool smaller = device_size.width() < image_.width();
    painter.drawImage(
        QRectF(contentsRect().topLeft(), size),
        smaller ? image_.scaled(device_size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                : image_);
    painter.setClipping(false);
    QFrame::paintEvent(event);
}

} // namespace cirrava
