#pragma once

#include "scale_editor/editor_state.h"
#include "scale_editor/working_scale.h"

namespace cirrava {

// Marks the range of cells that a colour will be applied to, and shows its ends in the range boxes.
class RangeSelection {
public:
    RangeSelection(EditorState& state, WorkingScale& working_scale, RangeBoxes& boxes)
        : state_(state), working_scale_(working_scale), boxes_(boxes) {}

    // Makes `kind` the working scale and blanks the boxes, unless it is the working scale already.
    void choose_scale(ScaleKind kind);

    // The left button marks the start of the range, every other button its end. A click on another
    // scale than the last blanks the opposite end.
    void cell_released(ScaleKind kind, int cell, Qt::MouseButton button);

    // Moves the start (Text1) or the end (Text2) of the range by so many cells of the working
    // scale, as a click there would, and stops at the ends of the scale. A box without a number
    // starts from the other box's cell, or else from the first cell.
    void step_start(int cells) { step(Qt::LeftButton, cells); }
    void step_end(int cells) { step(Qt::RightButton, cells); }

    // The cell of the working scale that `box` shows, if it shows one.
    std::optional<int> cell_of(const QLineEdit& box) const;

    // Takes the whole HVC scale for the range and blanks the boxes.
    void reset();

    // Whether both boxes hold a temperature, the start not above the end. Both are then cells of
    // the working scale.
    bool is_complete() const;

private:
    void step(Qt::MouseButton button, int cells);
    void blank_boxes();

    EditorState& state_;
    WorkingScale& working_scale_;
    RangeBoxes& boxes_;
};

// Shows in degrees Fahrenheit what `celsius` says; a blank where it says no number.
void show_fahrenheit(const QLineEdit& celsius, QLineEdit& fahrenheit);

} // namespace cirrava
