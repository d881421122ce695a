#pragma once

#include "colour/current_colour.h"
#include "platform/dialogs.h"
#include "scale_editor/range_selection.h"

namespace cirrava {

// Gives the cells from `range_start` to `range_end` of the working scale the colour, and returns
// that scale. Where the range is not complete, tells the user how to choose one and returns
// nothing.
std::optional<ScaleKind> apply_colour(Colour color, const RangeSelection& selection,
                                      const EditorState& state, const WorkingScale& working_scale,
                                      ScaleControls& scales, const Dialogs& dialogs);

} // namespace cirrava
