#pragma once

#include "scale_editor/scale.h"
#include "widgets/spoken.h"
#include "widgets/text_box.h"

#include <optional>

namespace cirrava {

// A box that shows the temperature of one side of the range. It takes keys as a spin box does: the
// arrows, page up, page down, and Ctrl with Home or End. Enter asks for the colour of its cell. For
// screen readers it is a spin box, of which they speak the value on each step.
class RangeBox : public TextBox, public Spoken {
    Q_OBJECT
public:
    // Shows the temperature of that cell, or a blank. `kind` is the working scale.
    void show_cell(ScaleKind kind, std::optional<int> cell);

    ScaleKind kind() const { return kind_; }
    std::optional<int> cell() const { return cell_; }

    QAccessibleInterface* new_accessible() override;

signals:
    void stepped(int cells);          // so many cells warmer, below 0 colder
    void sent_to_limit(bool warmest); // of the scale
    void colour_asked();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    ScaleKind kind_ = ScaleKind::thermal;
    std::optional<int> cell_;
};

} // namespace cirrava
