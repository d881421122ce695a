#pragma once

#include "colour/current_colour.h"
#include "widgets/common_dialog.h"

namespace cirrava {

// Takes the current colour from the colour dialog, which opens at it, or at white where it is
// black. A cancel changes nothing and says nothing.
void pick_colour(CommonDialog& cdlopen, CurrentColour& current_colour);

} // namespace cirrava
