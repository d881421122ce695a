#include "palette_files/load_palette.h"

#include "palette_files/palette_image.h"

namespace cirrava {

namespace {

void ask_for_file(FileDesk& desk) {
    desk.cdlopen.Filter = "*.bmp";
    desk.cdlopen.CancelError = true;
    desk.cdlopen.DialogTitle = "Read and Load palette";
    desk.cdlopen.ShowOpen();
    desk.out_path = desk.cdlopen.FileName;
}

void load_file(const FileDesk& desk, ScaleControls& scales, PictureBox& Picture1) {
    BinaryFile file(file_path(desk.out_path), FileAccess::read);
    const Bytes headers = file.read(headers_size);
    const auto layout = palette_layout(headers);
    if (!layout) {
        file.close(); // before the user is kept waiting
        return desk.dialogs.tell(is_bitmap(headers)
                                     ? "Not a Cirrava PAL file... It's probably corrupted"
                                     : "Selected file is not a color palette");
    }
    file.seek(layout->pixels_at);
    const Bytes pixels = file.read(layout->pixels_size);
    file.close();
    scales.cells(layout->kind).set_colours(palette_colours(*layout, pixels));
    if (layout->kind == ScaleKind::hvc && !Picture1.show_file(desk.out_path))
        throw Failure{FailureNumber::not_a_picture};
}

} // namespace

void load_palette(FileDesk& desk, ScaleControls& scales, PictureBox& Picture1) {
    try {
        ask_for_file(desk);
        load_file(desk, scales, Picture1);
    } catch (const Failure& failure) {
        tell_failure(desk, "Error # ", failure, " Cannot Read File");
    }
}

} // namespace cirrava
