#pragma once

#include "scale_editor/cell_array.h"
#include "scale_editor/selection.h"
#include "widgets/common_dialog.h"
#include "widgets/picture_box.h"
#include "widgets/slider.h"

namespace cirrava {

// Makes the HVC image from the HVC cells, for the preview and for the file, and lightens or darkens
// the selected cells.
class HvcPalette {
public:
    HvcPalette(CommonDialog& cdlopen, const Selection& selection, CellArray& Label3,
               Slider& HScroll4, PictureBox& Picture1);

    // Writes the palette to a file that the user names, and shows it once it is written.
    void generate();

    // Writes the preview file anew from the cells, and shows them even when that fails.
    void refresh_preview();

    // The same, but says nothing of a preview file that cannot be written: it is not what the user
    // asked for.
    void refresh_preview_silently();

    // Follows a move of the brightness slider: shifts the selected cells by as much, refreshes the
    // preview and puts the slider back to rest. Out of the user's reach, only that.
    void brightness_changed();

private:
    static constexpr int slider_rest = 5; // of the brightness slider, from 0 to 10

    void create_hvc_file(int fromwhere);
    void write_preview_file(int fromwhere);
    void show_preview();

    CommonDialog& cdlopen_;
    const Selection& selection_;
    CellArray& Label3_;
    Slider& HScroll4_;
    PictureBox& Picture1_;
};

} // namespace cirrava
