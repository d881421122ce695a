#pragma once

#include <QFrame>
#include <QImage>

namespace cirrava {

// A box with a sunken border that shows an image at its top left, each pixel of it as a sharp
// square on every screen. It starts empty.
class PictureBox : public QFrame {
    Q_OBJECT
public:
    PictureBox();

    // Sets the width of an image's pixel in pixels of the box.
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
