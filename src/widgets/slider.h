#pragma once

#include <QColor>
#include <QScrollBar>

namespace cirrava {

// A horizontal slider for a number from 0 to `maximum`, with arrows at its ends: arrows, track,
// keys and each notch of the wheel move it by 1, Home and End to its ends, and Tab reaches it. When
// something other than the mouse button ends a drag, such as a window that opens, the thumb goes
// back to the number. The track is plain, or shows a colour for each number, which is seen through
// the thumb.
class Slider : public QScrollBar {
    Q_OBJECT
public:
    explicit Slider(int maximum);

    // The colours for 0 and for the maximum.
    void set_track(const QColor& first, const QColor& last);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QColor first_, last_; // of the track
    int turned_ = 0;      // how far the wheel is past its last full notch, in eighths of a degree
};

} // namespace cirrava
