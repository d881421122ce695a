#include "palette_files/load_palette.h"

#include "palette_files/palette_image.h"
#include "platform/binary_file.h"
#include "platform/failure.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageReader>

namespace cirrava {

namespace {

// The image of an HVC palette in `file`; null when there is none. Whatever a file claims, no more
// memory is taken than such an image needs.
QImage hvc_image_in(BinaryFile& file) {
    const QSize size(cell_count(ScaleKind::hvc), hvc_rows);
    file.seek(0);
    QFile device;
    if (!device.open(file.stream(), QIODevice::ReadOnly))
        return {};
    QImageReader reader(&device, "BMP");
    if (reader.size() != size)
        return {};
    QImage image(size, reader.imageFormat());
    image.fill(Qt::black); // where the file is cut short, the reader leaves what it finds
    return reader.read(&image) ? image : QImage();
}

void load_file(CommonDialog& cdlopen, const AllScales& scales, PictureBox& Picture1) {
    BinaryFile file(cdlopen.file_path(), FileAccess::read);
    const Bytes headers = file.read(headers_size);
    const auto layout = palette_layout(headers);
    if (!layout) {
        file.close(); // the message may stand for long
        if (is_bitmap(headers))
            return cdlopen.tell("Not a Cirrava PAL file... It's probably corrupted");
        return cdlopen.tell("Selected file is not a color palette");
    }
    file.seek(layout->pixels_offset);
    const auto colours = palette_colours(*layout, file.read(layout->pixels_size));
    scales.at(static_cast<std::size_t>(layout->kind)).cells.set_colours(colours);
    if (layout->kind != ScaleKind::hvc)
        return;
    const QImage image = hvc_image_in(file);
    if (image.isNull())
        throw Failure{FailureNumber::not_a_picture};
    Picture1.show_image(image);
}

} // namespace

void load_palette(CommonDialog& cdlopen, const AllScales& scales, PictureBox& Picture1) {
    try {
        cdlopen.DialogTitle = "Read and Load palette";
        cdlopen.ShowOpen();
        load_file(cdlopen, scales, Picture1);
    } catch (const Failure& failure) {
        cdlopen.tell("Error # ", failure, " Cannot Read File");
    }
}

QString shipped_palettes() {
    const QString program_folder = QCoreApplication::applicationDirPath();
    for (const QString& folder : QStringList{"/palettes", "/../share/cirrava-pal/palettes"})
        if (QDir(program_folder + folder).exists())
            return QDir::cleanPath(program_folder + folder);
    return {};
}

} // namespace cirrava
