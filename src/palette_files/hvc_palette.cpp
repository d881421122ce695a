#include "palette_files/hvc_palette.h"

#include "palette_files/palette_image.h"

namespace cirrava {

namespace {

// In the current directory.
constexpr const char* preview_file = "~~temphvc.bmp";

// Values of `fromwhere`; every other is a number of slider steps, above 0 darker.
constexpr int preview_only = 0;
constexpr int final_file = 25;

constexpr int slider_rest = 5;

} // namespace

HvcPalette::HvcPalette(CommonDialog& cdlopen, const Dialogs& dialogs, const EditorState& state,
                       ScaleControls& scales, PictureBox& Picture1)
    : cdlopen_(cdlopen), dialogs_(dialogs), state_(state), Label3_(scales.Label3),
      HScroll4_(scales.HScroll4), Picture1_(Picture1) {
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

void HvcPalette::refresh_preview_silently() {
    try {
        write_preview_file(0);
    } catch (const Failure&) {
        // The next preview that the user asks for will tell.
    }
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
        if (fromwhere == final_file)
            return write_final_file();
        write_preview_file(fromwhere);
        return true;
    } catch (const Failure& failure) {
        tell_failure(dialogs_, "Error # ", failure, " A problem occured during file creation");
        return false;
    }
}

bool HvcPalette::write_final_file() {
    const auto out_path =
        choose_output(cdlopen_, dialogs_, {.file_name = "hvc.bmp", .title = "Create HVC Palette"});
    if (out_path)
        write_palette(*out_path, hvc_image(Label3_.colours(), Label3_.colours()));
    return out_path.has_value();
}

// The selected cells change once the headers are written, even if the pixels cannot be.
void HvcPalette::write_preview_file(int steps) {
    const std::vector<Colour> before(Label3_.colours().begin(), Label3_.colours().end());
    const auto after = shift_brightness(before, {.levels = brightness_levels(steps),
                                                 .first = state_.range_start,
                                                 .last = state_.range_end});
    // Darker cells show from row 127 up, lighter ones from the next image on.
    const Bytes image = hvc_image(before, steps > 0 ? after : before);
    const auto headers = std::span(image).first<headers_size>();
    const auto pixels = std::span(image).subspan<headers_size>();

    BinaryFile file(preview_file, FileAccess::read_write);
    file.write(headers);
    Label3_.set_colours(after);
    file.write(pixels);
    file.close();
}

// The cells, as a file that is written from them holds them.
void HvcPalette::show_picture() {
    const Bytes image = hvc_image(Label3_.colours(), Label3_.colours());
    Picture1_.show_image(QImage::fromData(image.data(), static_cast<int>(image.size()), "BMP"));
}

} // namespace cirrava
