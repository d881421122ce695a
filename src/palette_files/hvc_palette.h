#pragma once

#include "palette_files/palette_image.h"
#include "palette_files/save_prompt.h"
#include "platform/controls.h"
#include "scale_editor/cell_array.h"
#include "scale_editor/editor_state.h"

namespace cirrava {

// Makes the HVC image from the HVC cells, for the preview and for the file, and lightens or darkens
// the selected cells.
class HvcPalette {
public:
    HvcPalette(const FileDesk& desk, const EditorState& state, CellArray& Label3,
               PictureBox& Picture1, NumberBar& HScroll4)
        : desk_(desk), state_(state), Label3_(Label3), Picture1_(Picture1), HScroll4_(HScroll4) {}

    // Writes the palette to a file that the user names, and shows it once it is written.
    void generate();

    // Writes the preview file anew from the cells and shows it.
    void refresh_preview();

    // Puts the brightness slider to work: sets it to rest, in the middle of its range.
    void start();

    // The brightness slider was moved: shifts the selected cells by as much, refreshes the preview
    // and puts the slider back to rest.
    void brightness_changed();

private:
    bool create_hvc_file(int fromwhere); // whether it was written
    Bytes build_image(int fromwhere);

    FileDesk desk_;
    const EditorState& state_;
    CellArray& Label3_;
    PictureBox& Picture1_;
    NumberBar& HScroll4_;
};

} // namespace cirrava
