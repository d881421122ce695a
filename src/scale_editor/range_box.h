#pragma once

#include <QLineEdit>

namespace cirrava {

// A box that shows the temperature of one side of the range. It is not typed into but takes keys as
// a spin box does: the arrows, page up, page down, and Ctrl with Home or End. Enter asks for the
// colour of its cell.
class RangeBox : public QLineEdit {
    Q_OBJECT
signals:
    void stepped(int cells); // so many cells warmer, below 0 colder
    void sent_to_coldest();
    void sent_to_warmest();
    void colour_asked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace cirrava
