#pragma once

#include "scale_editor/editor_state.h"
#include "scale_editor/working_scale.h"

#include <QLineEdit>

namespace cirrava {

// Marks the range of cells that a colour will be applied to, and shows its ends in the range boxes.
class RangeSelection {
public:
    struct Boxes {
        QLineEdit& Text1; // start, degrees Celsius
        QLineEdit& Text2; // end, degrees Celsius
        QLineEdit& Text3; // start, degrees Fahrenheit
        QLineEdit& Text4; // end, degrees Fahrenheit
    };

    RangeSelection(EditorState& state, WorkingScale& working_scale, const Boxes& boxes)
        : state_(state), working_scale_(working_scale), boxes_(boxes) {}

    // Makes `kind` the working scale and blanks the boxes, unless it is the working scale already.
    void choose_scale(ScaleKind kind);

    // The left button marks the start of the range, every other button its end. A click on another
    // scale than the last blanks the opposite end.
    void cell_released(ScaleKind kind, int cell, Qt::MouseButton button);

    // The Fahrenheit boxes follow the Celsius boxes.
    void start_changed();
    void end_changed();

    // Takes the whole HVC scale for the range and blanks the boxes.
    void reset();

private:
    void blank_boxes();

    EditorState& state_;
    WorkingScale& working_scale_;
    Boxes boxes_;
};

} // namespace cirrava
