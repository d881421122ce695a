#pragma once

#include "palette_files/file_actions.h"
#include "scale_editor/editor_state.h"
#include "scale_editor/scale_controls.h"
#include "widgets/picture_box.h"

namespace cirrava {

// Makes the HVC image from the HVC cells, for the preview and for the file, and lightens or darkens
// the selected cells.
class HvcPalette {
public:
    HvcPalette(CommonDialog& cdlopen, const Dialogs& dialogs, const EditorState& state,
               ScaleControls& scales, PictureBox& Picture1);

    // Writes the palette to a file that the user names, and shows it once it is written.
    void generate();

    // Writes the preview file anew from the cells, and shows them as a picture in every case.
    void refresh_preview();

    // The same, but a preview file that cannot be written is not told: it is not what the user
    // asked for.
    void refresh_preview_silently();

    // The brightness slider was moved: shifts the selected cells by as much, refreshes the preview
    // and puts the slider back to rest.
    void brightness_changed();

private:
    bool create_hvc_file(int fromwhere); // whether it was written
    bool write_final_file();
    void write_preview_file(int steps);
    void show_picture();

    CommonDialog& cdlopen_;
    const Dialogs& dialogs_;
    const EditorState& state_;
    CellArray& Label3_;
    NumberBar& HScroll4_;
    PictureBox& Picture1_;
};

} // namespace cirrava
