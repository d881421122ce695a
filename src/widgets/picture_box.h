#pragma once

#include <QFrame>
#include <QImage>

namespace cirrava {

// A box with a sunken border that shows an image at the top left, each pixel a sharp square at
// every scale factor. It starts empty.
class PictureBox : public QFrame {
    Q_OBJECT
public:
    PictureBox();

    void show_image(const QImage& image);
    const QImage& image() const { return image_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage image_;
};

} // namespace cirrava
