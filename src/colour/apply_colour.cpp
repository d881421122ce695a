#include "colour/apply_colour.h"

namespace cirrava {

void apply_colour(Colour color, const std::optional<Range>& range, ScaleControls& scales,
                  const Dialogs& dialogs) {
    if (!range)
        return dialogs.tell("Choose a range by left clicking for start and right clicking for end");
    CellArray& cells = scales.cells(range->kind);
    for (int cell = range->first; cell <= range->last; ++cell)
        cells.set_colour(cell, color);
}

} // namespace cirrava
