#pragma once

#include <QPushButton>

class QStylePainter;

namespace cirrava {

// A push button that can be painted in a colour of its own, flat and exact, with its caption
// wrapped and shown as it is, a "&" too. Enter and Space press it.
class Button : public QPushButton {
    Q_OBJECT
public:
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

} // namespace cirrava
