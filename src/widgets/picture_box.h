#pragma once

#include <QFrame>
#include <QImage>

namespace cirrava {

// A frame that shows an image at its top left: each pixel as a sharp square on every screen, but
// smoothed where the image is dense or made smaller. It starts empty.
class PictureBox : public QFrame {
    Q_OBJECT
public:
    // Before it is shown: how large to show the image, of which 1 is its own size.
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
