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

    // Takes the whole HVC scale for the range and blanks the boxes.
    void reset();

    // Whether both boxes hold a temperature, the start not above the end. Both are then cells of
    // the working scale.
    bool is_complete() const;

private:
    void blank_boxes();

    EditorState& state_;
    WorkingScale& working_scale_;
    RangeBoxes& boxes_;
};

// Shows in degrees Fahrenheit what `celsius` says; a blank where it says no number.
void show_fahrenheit(const QLineEdit& celsius, QLineEdit& fahrenheit);

} // namespace cirrava
