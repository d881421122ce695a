#pragma once

#include "widgets/text_box.h"

namespace cirrava {

// A box that shows the temperature of one side of the range. It takes keys as a spin box does: the
// arrows, page up, page down, and Ctrl with Home or End. Enter asks for the colour of its cell. For
// screen readers it is a spin box, of which they speak the value on each step.
class RangeBox : public TextBox {
    Q_OBJECT
public:
    RangeBox();

    // Shows `text`, a number or a blank.
    void show_text(const QString& text);

signals:
    void stepped(int cells);          // so many cells warmer, below 0 colder
    void sent_to_limit(bool warmest); // of the scale
    void colour_asked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace cirrava
