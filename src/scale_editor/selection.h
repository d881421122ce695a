#pragma once

#include "scale_editor/range.h"
#include "scale_editor/range_box.h"
#include "scale_editor/scale_controls.h"
#include "widgets/text_box.h"

#include <QLabel>
#include <QList>
#include <optional>

namespace cirrava {

// The working scale and the range of its cells that a colour is for, with all that shows them:
// `Label5`, the controls that belong to one scale only, the boxes and the lines under the cells.
class Selection {
public:
    // The boxes of one side of the range.
    struct Boxes {
        RangeBox& celsius;
        TextBox& fahrenheit;
    };

    Selection(const AllScales& scales, QLabel& Label5, const Boxes& start, const Boxes& end)
        : scales_(scales), Label5_(Label5), range_start_{start}, range_end_{end} {
        show_working_scale();
    }

    const ScaleControls& working_scale() const { return *working_scale_; }

    // Makes `scale` the working scale and blanks the boxes, unless it is that already.
    void choose(const ScaleControls& scale);

    // Marks `cell` as that side of the range and makes `scale` the working scale.
    void mark(const ScaleControls& scale, int cell, Side side);

    // Moves that side by so many cells of the working scale and stops at its first and last. A side
    // that is blank goes to the cell of the other side, or else to the first cell.
    void step(Side side, int cells);
    void send_to_limit(Side side, bool warmest);

    // Takes the whole HVC scale for the range and blanks the boxes.
    void reset();

    // The cell of the working scale that the boxes of that side show, if they show one.
    std::optional<int> cell_of(Side side) const;

    // The cells of the working scale that a colour is for. Nothing unless both sides are shown and
    // the start is not above the end.
    std::optional<Range> range() const;

    // The cells of the working scale that the brightness slider changes, whatever the boxes show;
    // none unless that is the HVC scale.
    Range brightness_range() const;

private:
    // One side of the range.
    struct Bound {
        Boxes boxes;
        int cell = 0;       // of the scale on which this side was marked last; of HVC since a reset
        bool shown = false; // in the boxes; then it is a cell of the working scale
    };

    QList<Range> marked_cells() const;
    void blank();
    void show_working_scale();
    void show_range();

    const AllScales& scales_;
    QLabel& Label5_;
    const ScaleControls* working_scale_ = &scales_.front();
    Bound range_start_, range_end_; // the start may lie behind the end
};

} // namespace cirrava
