#include "palette_files/hvc_palette.h"

namespace cirrava {

namespace {

// In the current directory.
const QString preview_file = QStringLiteral("~~temphvc.bmp");

// Values of `fromwhere`; every other is a number of slider steps, above 0 darker.
constexpr int preview_only = 0;
constexpr int final_file = 25;

constexpr int slider_rest = 5;

} // namespace

HvcPalette::HvcPalette(FileDesk& desk, const EditorState& state, ScaleControls& scales,
                       PictureBox& Picture1)
    : desk_(desk), state_(state), Label3_(scales.Label3), HScroll4_(scales.HScroll4),
      Picture1_(Picture1) {
    HScroll4_.setTracking(false); // a drag counts once, at its end
}

void HvcPalette::generate() {
    if (create_hvc_file(final_file))
        show_picture();
}

void HvcPalette::refresh_preview() {
    create_hvc_file(preview_only);
    show_picture();
}

void HvcPalette::brightness_changed() {
    const int steps = slider_rest - HScroll4_.value();
    if (steps == 0)
        return;
    const bool had_focus = HScroll4_.hasFocus(); // which a disabled control loses
    HScroll4_.setEnabled(false);
    create_hvc_file(steps);
    refresh_preview();
    HScroll4_.setValue(slider_rest);
    HScroll4_.setEnabled(true);
    if (had_focus)
        HScroll4_.setFocus();
}

bool HvcPalette::create_hvc_file(int fromwhere) {
    try {
        if (fromwhere != final_file)
            desk_.out_path = preview_file;
        else if (!choose_output(desk_, {.file_name = "hvc.bmp", .title = "Create HVC Palette"}))
            return false;
        write_image(fromwhere);
        return true;
    } catch (const Failure& failure) {
        tell_failure(desk_, "Error # ", failure, " A problem occured during file creation");
        return false;
    }
}

// A file that cannot be opened leaves the cells as they are; one that cannot be written does not.
void HvcPalette::write_image(int fromwhere) {
    const int steps = fromwhere == final_file ? 0 : fromwhere;
    BinaryFile file(file_path(desk_.out_path), FileAccess::read_write);
    const std::vector<Colour> before(Label3_.colours().begin(), Label3_.colours().end());
    Label3_.set_colours(shift_brightness(before, {.levels = brightness_levels(steps),
                                                  .first = state_.range_start,
                                                  .last = state_.range_end}));
    // Darker cells show from row 127 up, lighter ones from the next image on.
    file.write(hvc_image(before, steps > 0 ? Label3_.colours() : before));
    if (fromwhere == final_file)
        file.sync();
    file.close();
}

// The cells, as a file that is written from them holds them.
void HvcPalette::show_picture() {
    const Bytes image = hvc_image(Label3_.colours(), Label3_.colours());
    Picture1_.show_image(QImage::fromData(image.data(), static_cast<int>(image.size()), "BMP"));
}

} // namespace cirrava
