#pragma once

#include <QScrollBar>

namespace cirrava {

// A horizontal slider for a number from 0 to `maximum`, with arrows at its ends: arrows, track,
// keys and each notch of the wheel move it by 1, and Tab reaches it. When something other than the
// mouse button ends a drag, such as a window that opens, the thumb goes back to the number.
class Slider : public QScrollBar {
    Q_OBJECT
public:
    explicit Slider(int maximum);

protected:
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void give_up_drag();

    int turned_ = 0; // how far the wheel is past its last full notch, in eighths of a degree
};

} // namespace cirrava
