#pragma once

#include "palette_files/file_actions.h"
#include "scale_editor/scale_controls.h"
#include "widgets/picture_box.h"

namespace cirrava {

// Reads a palette file that the user picks into the cells of the scale that its size names,
// whatever the working scale, and shows an HVC file in the picture box. Nothing else changes.
void load_palette(CommonDialog& cdlopen, const Dialogs& dialogs, ScaleControls& scales,
                  PictureBox& Picture1);

} // namespace cirrava
