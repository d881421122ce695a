#pragma once

#include <QLineEdit>

namespace cirrava {

// A box that shows one end of the range. It is not typed into but takes keys as a spin box does:
// the arrows, page up, page down, and Ctrl with Home or End. Enter asks for the colour of its cell.
class RangeBox : public QLineEdit {
    Q_OBJECT
signals:
    // So many cells warmer, below 0 colder; a number beyond every scale goes to its end.
    void stepped(int cells);
    void colour_asked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace cirrava
