#include "platform/controls.h"

#include <QFileInfo>
#include <QImageReader>
#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QWheelEvent>

namespace cirrava {

namespace {

constexpr int focus_inset = 3; // from the edge of a control, in pixels

void paint_focus(QStylePainter& painter, const QWidget& control, const QColor& ground) {
    if (!control.hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(&control);
    option.rect =
        control.rect().marginsRemoved({focus_inset, focus_inset, focus_inset, focus_inset});
    option.backgroundColor = ground;
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

void give_sunken_border(QFrame& frame) {
    frame.setFrameStyle(QFrame::Panel | QFrame::Sunken);
    frame.setLineWidth(2);
    frame.setFocusPolicy(Qt::TabFocus);
}

// Null when the regular file `path` holds no image of that size. Whatever a file claims, no more
// memory is taken than such an image needs.
QImage image_in(const QString& path, QSize size) {
    QImageReader reader(path);
    // Anything but a regular file, such as a pipe, could keep the reader waiting.
    if (!QFileInfo(path).isFile() || reader.size() != size)
        return {};
    QImage image(size, reader.imageFormat());
    image.fill(Qt::black); // where the file is cut short, the reader leaves what it finds
    return reader.read(&image) ? image : QImage();
}

} // namespace

QString spoken_colour(const QColor& colour) {
    return QString("%1, %2, %3").arg(colour.red()).arg(colour.green()).arg(colour.blue());
}

Button::Button() {
    setFocusPolicy(Qt::StrongFocus);
}

void Button::set_face(const QColor& face) {
    if (face == face_)
        return;
    face_ = face;
    update();
}

QRect Button::caption_box() const {
    return rect().marginsRemoved({focus_inset, focus_inset, focus_inset, focus_inset});
}

void Button::paintEvent(QPaintEvent*) {
    QStyleOptionButton option;
    initStyleOption(&option);
    QStylePainter painter(this);
    if (face_.isValid())
        paint_face(painter, isDown() ? face_.darker(125) : face_);
    else
        painter.drawControl(QStyle::CE_PushButtonBevel, option);
    const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    painter.setPen(palette().color(group, QPalette::ButtonText));
    painter.drawText(caption_box(), Qt::AlignCenter | Qt::TextDontClip | Qt::TextWordWrap, text());
    paint_focus(painter, *this, face_.isValid() ? face_ : palette().color(QPalette::Button));
}

// Qt lets Enter press a button in dialogs only.
void Button::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

// With a fine outline that leaves out the corners.
void Button::paint_face(QStylePainter& painter, const QColor& colour) const {
    const QColor outline = palette().color(QPalette::Window).darker(170);
    painter.fillRect(rect().adjusted(1, 0, -1, 0), outline);
    painter.fillRect(rect().adjusted(0, 1, 0, -1), outline);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), colour);
}

NumberBar::NumberBar(int maximum, int value) : QScrollBar(Qt::Horizontal) {
    setRange(0, maximum);
    setValue(value);
    setSingleStep(1);
    setPageStep(1);
    setInvertedControls(false); // right and up are more, for keys and wheel
    setContextMenuPolicy(Qt::NoContextMenu);
    setFocusPolicy(Qt::StrongFocus);
}

void NumberBar::paintEvent(QPaintEvent* event) {
    QScrollBar::paintEvent(event);
    QStylePainter painter(this);
    paint_focus(painter, *this, palette().color(QPalette::Window));
}

void NumberBar::wheelEvent(QWheelEvent* event) {
    constexpr int notch = QWheelEvent::DefaultDeltasPerStep; // finer wheels send parts of it
    const QPoint turn = event->angleDelta();
    turned_ += turn.y() - turn.x(); // up and right are more
    const int notches = turned_ / notch;
    turned_ %= notch;
    setValue(value() + notches);
    event->accept();
}

Line::Line() {
    setBackgroundRole(QPalette::WindowText);
    setAutoFillBackground(true);
}

Swatch::Swatch() {
    give_sunken_border(*this);
}

void Swatch::set_colour(const QColor& colour) {
    if (colour == colour_)
        return;
    colour_ = colour;
    setAccessibleDescription(spoken_colour(colour));
    update();
}

void Swatch::paintEvent(QPaintEvent* event) {
    QStylePainter painter(this);
    painter.fillRect(contentsRect(), colour_);
    QFrame::paintEvent(event);
    paint_focus(painter, *this, colour_);
}

PictureBox::PictureBox(QSize image_size) : image_size_(image_size) {
    give_sunken_border(*this);
}

void PictureBox::show_image(const QImage& image) {
    image_ = image;
    update();
}

bool PictureBox::show_file(const QString& path) {
    const QImage image = image_in(path, image_size_);
    if (!image.isNull())
        show_image(image);
    return !image.isNull();
}

void PictureBox::paintEvent(QPaintEvent* event) {
    QStylePainter painter(this);
    painter.setClipRect(contentsRect());
    painter.drawImage(QRect(contentsRect().topLeft(), image_.size()), image_);
    painter.setClipping(false);
    QFrame::paintEvent(event);
    paint_focus(painter, *this, palette().color(QPalette::Window));
}

} // namespace cirrava
