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

    // How many pixels of the box a pixel of an image takes.
    void set_zoom(double zoom) { zoom_ = zoom; }

    void show_image(const QImage& image);
    const QImage& image() const { return image_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage image_;
    double zoom_ = 1;
};

} // namespace cirrava
