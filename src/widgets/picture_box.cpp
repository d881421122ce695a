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
    const QRectF box(contentsRect().topLeft(), image_.deviceIndependentSize() * zoom_);
    QImage shown = image_;
    // Here, since a painter that smooths would start threads.
    if (zoom_ < image_.devicePixelRatio() && !image_.isNull())
        shown = image_.scaled((box.size() * devicePixelRatioF()).toSize(), Qt::IgnoreAspectRatio,
                              Qt::SmoothTransformation);
    painter.drawImage(box, shown);
    painter.setClipping(false);
    QFrame::paintEvent(event);
}

} // namespace cirrava
