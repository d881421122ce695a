#pragma once

#include "scale_editor/editor_state.h"
#include "scale_editor/range.h"
#include "scale_editor/working_scale.h"

namespace cirrava {

// Marks the range of cells that a colour will be applied to, and shows its ends in the range boxes
// and by a line under the cells.
class RangeSelection {
public:
    RangeSelection(EditorState& state, WorkingScale& working_scale, ScaleControls& scales,
                   RangeBoxes& boxes)
        : state_(state), working_scale_(working_scale), scales_(scales), boxes_(boxes) {}

    // Makes `kind` the working scale and blanks the boxes, unless it is the working scale already.
    void choose_scale(ScaleKind kind);

    // Marks `cell` as that end of the range and makes `kind` the working scale. When the last cell
    // marked was of another scale, the opposite end becomes blank.
    void mark(ScaleKind kind, int cell, RangeEnd end);

    // Moves that end by so many cells of the working scale and stops at the ends of the scale. An
    // end that is blank goes to the other end's cell, or else to the first cell; from there a step
    // beyond every scale goes to the scale's end all the same.
    void step(RangeEnd end, int cells);

    // The cell of the working scale that the box of that end shows, if it shows one.
    std::optional<int> cell_of(RangeEnd end) const;

    // Takes the whole HVC scale for the range and blanks the boxes.
    void reset();

    // The range that the boxes show: both hold a temperature, the start not above the end.
    std::optional<Range> range() const;

private:
    void blank_boxes();
    void underline_cells();
    QList<Underline> underlines() const;

    EditorState& state_;
    WorkingScale& working_scale_;
    ScaleControls& scales_;
    RangeBoxes& boxes_;
};

// Shows in degrees Fahrenheit what `celsius` says; a blank where it says no number.
void show_fahrenheit(const QLineEdit& celsius, QLineEdit& fahrenheit);

} // namespace cirrava
