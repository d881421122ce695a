#pragma once

#include <QPushButton>

namespace cirrava {

// A push button whose flat face can have a colour of its own, with its caption wrapped and shown as
// it is, a "&" too. Its edge tells of the pointer over it. Enter and Space press it. Screen readers
// cannot while it is behind a modal window.
class Button : public QPushButton {
    Q_OBJECT
public:
    // An invalid colour gives back the standard face.
    void set_face(const QColor& face);
    QColor face() const { return face_; }

    QRect caption_box() const; // in the button's pixels

protected:
    bool event(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QColor face_;
};

} // namespace cirrava
