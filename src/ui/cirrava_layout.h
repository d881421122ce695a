#pragma once

#include "ui/cirrava_controls.h"

namespace cirrava {

// Puts every control into `window`, with its name, caption, look and tab order, and
// gives the window its size, icon and frame.
void lay_out(CirravaControls& controls, QWidget& window);

} // namespace cirrava
