#include "palette_files/hvc_palette.h"

#include "palette_files/palette_image.h"
#include "palette_files/save_palette.h"
#include "platform/failure.h"
#include "widgets/in_reach.h"

#include <QImage>
#include <algorithm>
#include <span>

namespace cirrava {

constexpr char preview_file[] = "~~temphvc.bmp"; // in the current directory

HvcPalette::HvcPalette(CommonDialog& cdlopen, const Selection& selection, CellArray& Label3,
                       Slider& HScroll4, PictureBox& Picture1)
    : cdlopen_(cdlopen), selection_(selection), Label3_(Label3), HScroll4_(HScroll4),
      Picture1_(Picture1) {
    HScroll4_.setValue(slider_rest);
    HScroll4_.setTracking(false); // a drag counts once, when the mouse button is released
}

void HvcPalette::generate() {
    if (save_palette(cdlopen_, hvc_image(Label3_.colours()),
                     {"hvc.bmp", "Create HVC Palette", "Error # "}))
        show_preview();
}

void HvcPalette::refresh_preview() {
    create_hvc_file(0);
    show_preview();
}

void HvcPalette::refresh_preview_silently() {
    try {
        write_preview_file(0);
    } catch (const Failure&) {
        // The next preview that the user asks for will tell.
    }
    show_preview();
}

void HvcPalette::brightness_changed() {
    const int steps = slider_rest - HScroll4_.value();
    if (steps == 0)
        return;
    if (!in_reach(HScroll4_))
        return HScroll4_.setValue(slider_rest);
    const bool had_focus = HScroll4_.hasFocus(); // which a disabled control loses
    HScroll4_.setEnabled(false);
    create_hvc_file(steps);
    refresh_preview(); // a second writing, of which a failure is told, too
    HScroll4_.setValue(slider_rest);
    HScroll4_.setEnabled(true);
    if (had_focus)
        HScroll4_.setFocus();
}

// Writes the preview after a shift by so many slider steps, above 0 darker.
void HvcPalette::create_hvc_file(int fromwhere) {
    try {
        write_preview_file(fromwhere);
    } catch (const Failure& failure) {
        cdlopen_.tell("Error # ", failure, " A problem occured during file creation");
    }
}

// The preview file's bytes are fixed as those of palettes are, and so is what it holds between a
// shift and the refresh after it: of darker cells the new colours from row 127 up, of lighter ones
// the old ones only. The selected cells change once the headers are written, even if the pixels
// cannot be.
void HvcPalette::write_preview_file(int fromwhere) {
    const auto before = Label3_.colours();
    const auto after =
        shift_brightness(before, brightness_levels(fromwhere), selection_.brightness_range());
    Bytes image = hvc_image(before);
    if (fromwhere > 0) {
        const Bytes darker = hvc_image(after);
        std::copy(darker.begin() + hvc_row_127, darker.end(), image.begin() + hvc_row_127);
    }

    BinaryFile file(preview_file, FileAccess::own);
    file.write(std::span(image).first(headers_size));
    Label3_.set_colours(after);
    file.write(std::span(image).subspan(headers_size));
    file.close();
}

// Shows the cells as a file would hold them.
void HvcPalette::show_preview() {
    const Bytes image = hvc_image(Label3_.colours());
    Picture1_.show_image(QImage::fromData(image.data(), static_cast<int>(image.size()), "BMP"));
}

} // namespace cirrava
