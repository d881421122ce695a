#pragma once

#include "palette_files/save_prompt.h"
#include "platform/controls.h"
#include "scale_editor/cell_array.h"

namespace cirrava {

// Reads a palette file that the user picks into the cells of the scale that its size names,
// whatever the working scale, and shows an HVC file in the picture box. Nothing else changes.
class PaletteLoader {
public:
    PaletteLoader(const FileDesk& desk, const Scales& scales, PictureBox& Picture1)
        : desk_(desk), scales_(scales), Picture1_(Picture1) {}

    void load();

private:
    void ask_for_file();
    void load_file();

    FileDesk desk_;
    Scales scales_;
    PictureBox& Picture1_;
};

} // namespace cirrava
