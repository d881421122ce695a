#pragma once

#include "scale_editor/scale_controls.h"
#include "widgets/common_dialog.h"
#include "widgets/picture_box.h"

#include <QString>

namespace cirrava {

// Reads a palette file that the user picks into the cells of the scale that its size names,
// whatever the working scale, and shows an HVC file in the picture box. Nothing else changes.
void load_palette(CommonDialog& cdlopen, const AllScales& scales, PictureBox& Picture1);

// The folder with the palettes to start from that come with the program: beside it, or where a
// Linux system keeps them. Empty where there is none.
QString shipped_palettes();

} // namespace cirrava
