#pragma once

#include <QColor>
#include <QFrame>
#include <QImage>
#include <QPushButton>
#include <QScrollBar>
#include <QStylePainter>

// The kinds of controls that Qt lacks.
namespace cirrava {

// A colour as screen readers say it: "255, 0, 0" for red.
QString spoken_colour(const QColor& colour);

// A push button that can be painted in a colour of its own, flat and exact, with its caption
// wrapped and shown as it is, a "&" too. Enter and Space press it.
class Button : public QPushButton {
    Q_OBJECT
public:
    Button();

    // An invalid colour gives back the standard look.
    void set_face(const QColor& face);
    QColor face() const { return face_; }

    QRect caption_box() const; // in the button's pixels

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void paint_face(QStylePainter& painter, const QColor& colour) const;

    QColor face_;
};

// A horizontal scroll bar for a number from 0 to `maximum`: arrows, track, keys and each notch of
// the wheel move it by 1, Tab reaches it, and the focus shows on it.
class NumberBar : public QScrollBar {
    Q_OBJECT
public:
    explicit NumberBar(int maximum, int value = 0);

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    int turned_ = 0; // of the wheel since its last full notch, in eighths of a degree
};

// A line, or bar, as wide and high as its place and filled with its text colour.
class Line : public QWidget {
    Q_OBJECT
public:
    Line();
};

// A box with a sunken border that shows one colour.
class Swatch : public QFrame {
    Q_OBJECT
public:
    Swatch();

    void set_colour(const QColor& colour);
    QColor colour() const { return colour_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor colour_;
};

// A box with a sunken border that shows images of one size at the top left, each pixel a sharp
// square at every scale factor. It starts empty.
class PictureBox : public QFrame {
    Q_OBJECT
public:
    explicit PictureBox(QSize image_size); // in pixels

    // `image` must be of the box's size.
    void show_image(const QImage& image);

    // Shows the image in the regular file `path`. False when that file holds no image of the box's
    // size: the box then keeps the image that it has.
    bool show_file(const QString& path);
    const QImage& image() const { return image_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize image_size_;
    QImage image_;
};

} // namespace cirrava
