#pragma once

#include "palette_files/file_desk.h"
#include "scale_editor/scale_controls.h"

namespace cirrava {

// Reads a palette file that the user picks into the cells of the scale that its size names,
// whatever the working scale, and shows an HVC file in the picture box. Nothing else changes.
void load_palette(FileDesk& desk, ScaleControls& scales, PictureBox& Picture1);

} // namespace cirrava
