#pragma once

#include <QScrollBar>

namespace cirrava {

// A horizontal scroll bar for a number from 0 to `maximum`: arrows, track, keys and each notch of
// the wheel move it by 1, and Tab reaches it.
class NumberBar : public QScrollBar {
    Q_OBJECT
public:
    explicit NumberBar(int maximum, int value = 0);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    int turned_ = 0; // of the wheel since its last full notch, in eighths of a degree
};

} // namespace cirrava
