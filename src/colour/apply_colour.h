#pragma once

#include "scale_editor/range.h"
#include "scale_editor/scale_controls.h"
#include "widgets/dialogs.h"

namespace cirrava {

// Gives the cells of `range` the colour. Without a range, tells the user how to choose one.
void apply_colour(Colour color, const std::optional<Range>& range, ScaleControls& scales,
                  const Dialogs& dialogs);

} // namespace cirrava
