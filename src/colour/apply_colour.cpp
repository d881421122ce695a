#include "colour/apply_colour.h"

#include <algorithm>

namespace cirrava {

void apply_colour(Colour color, const std::optional<Range>& range, ScaleControls& scales,
                  const Dialogs& dialogs) {
    if (!range)
        return dialogs.tell("Choose a range by left clicking for start and right clicking for end");
    CellArray& cells = scales.cells(range->kind);
    auto colours = cells.colours();
    std::fill(colours.begin() + range->first, colours.begin() + range->last + 1, color);
    cells.set_colours(colours);
}

} // namespace cirrava
