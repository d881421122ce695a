#include "palette_files/load_palette.h"

#include "palette_files/palette_image.h"

#include <QFileInfo>
#include <QImageReader>

namespace cirrava {

namespace {

QString choose_input(CommonDialog& cdlopen) {
    cdlopen.Filter = "*.bmp";
    cdlopen.CancelError = true;
    cdlopen.DialogTitle = "Read and Load palette";
    cdlopen.ShowOpen();
    return cdlopen.FileName;
}

// The image of an HVC palette in the file `path`; null when there is none. Whatever a file claims,
// no more memory is taken than such an image needs.
QImage hvc_image_in(const QString& path) {
    const QSize size(cell_count(ScaleKind::hvc), hvc_rows);
    QImageReader reader(path);
    // Anything but a regular file, such as a pipe, could keep the reader waiting.
    if (!QFileInfo(path).isFile() || reader.size() != size)
        return {};
    QImage image(size, reader.imageFormat());
    image.fill(Qt::black); // where the file is cut short, the reader leaves what it finds
    return reader.read(&image) ? image : QImage();
}

void load_file(const QString& out_path, const Dialogs& dialogs, ScaleControls& scales,
               PictureBox& Picture1) {
    BinaryFile file(file_path(out_path), FileAccess::read);
    const Bytes headers = file.read(headers_size);
    const auto layout = palette_layout(headers);
    if (!layout) {
        file.close(); // before the user is kept waiting
        if (is_bitmap(headers))
            return dialogs.tell("Not a Cirrava PAL file... It's probably corrupted");
        return dialogs.tell("Selected file is not a color palette");
    }
    file.seek(layout->pixels_offset);
    const Bytes pixels = file.read(layout->pixels_size);
    file.close();
    scales.cells(layout->kind).set_colours(palette_colours(*layout, pixels));
    if (layout->kind != ScaleKind::hvc)
        return;
    const QImage image = hvc_image_in(out_path);
    if (image.isNull())
        throw Failure{FailureNumber::not_a_picture};
    Picture1.show_image(image);
}

} // namespace

void load_palette(CommonDialog& cdlopen, const Dialogs& dialogs, ScaleControls& scales,
                  PictureBox& Picture1) {
    try {
        load_file(choose_input(cdlopen), dialogs, scales, Picture1);
    } catch (const Failure& failure) {
        tell_failure(dialogs, "Error # ", failure, " Cannot Read File");
    }
}

} // namespace cirrava
