#include "palette_files/palette_loader.h"

#include "palette_files/palette_image.h"

namespace cirrava {

void PaletteLoader::load() {
    try {
        ask_for_file();
        load_file();
    } catch (const Failure& failure) {
        tell_failure(desk_.dialogs, "Error # ", failure, " Cannot Read File");
    }
}

void PaletteLoader::ask_for_file() {
    desk_.cdlopen.Filter = "*.bmp";
    desk_.cdlopen.CancelError = true;
    desk_.cdlopen.DialogTitle = "Read and Load palette";
    desk_.cdlopen.ShowOpen();
    desk_.out_path = desk_.cdlopen.FileName;
}

void PaletteLoader::load_file() {
    BinaryFile file(file_path(desk_.out_path), FileAccess::read);
    const Bytes headers = file.read(headers_size);
    if (!is_bitmap(headers)) {
        file.close();
        return desk_.dialogs.tell("Selected file is not a color palette");
    }
    const auto layout = palette_layout(headers);
    if (!layout) {
        file.close();
        return desk_.dialogs.tell("Not a Cirrava PAL file... It's probably corrupted");
    }
    file.seek(layout->pixels_at);
    scales_[layout->kind].set_colours(palette_colours(*layout, file.read(layout->pixels_size)));
    file.close();
    if (layout->kind == ScaleKind::hvc && !Picture1_.show_file(desk_.out_path))
        throw Failure{FailureNumber::not_a_picture};
}

} // namespace cirrava
