#include "editor_model.h"

#include <QColor>
#include <QImageReader>
#include <QtEndian>
#include <algorithm>

namespace cirrava {

namespace {

const QString blank = " ";

// Each channel of a colour moved by as many levels, as far as it goes.
int shifted(int colour, int levels) {
    int result = 0;
    for (int channel = 1; channel <= 65536; channel *= 256)
        result += channel * std::clamp(colour / channel % 256 + levels, 0, 255);
    return result;
}

int byte_at(const QByteArray& bytes, qsizetype place) {
    return static_cast<unsigned char>(bytes.at(place));
}

// The image in a file; none when it holds none. Rows that a cut file lacks are black.
QImage image_in(const QString& path) {
    QImageReader reader(path);
    QImage image(reader.size(), reader.imageFormat());
    image.fill(Qt::black);
    return reader.read(&image) ? image : QImage();
}

// The number of four bytes at `place`.
qsizetype number_at(const QByteArray& bytes, qsizetype place) {
    return qFromLittleEndian<qint32>(bytes.constData() + place);
}

} // namespace

const QStringList EditorModel::names{"Thermal", "Sea", "HVC"};
const QList<QRgb> EditorModel::presets{
    0xFFFFFF, 0xE0E0E0, 0xC0C0C0, 0x808080, 0x404040, 0x000000, // greys
    0xFFC0C0, 0xFF8080, 0xC00000, 0xFF0000, 0x800000, 0x400000, // reds
    0xFFE0C0, 0xFFC080, 0xFF8000, 0xC04000, 0x804040, 0x804000, // oranges and browns
    0xFFFFC0, 0xFFFF80, 0xFFFF00, 0xC0C000, 0x808000, 0x404000, // yellows
    0x80FF80, 0xC0FFC0, 0x00FF00, 0x00C000, 0x008000, 0x004000, // greens
    0xC0FFFF, 0x80FFFF, 0x00C0C0, 0x00FFFF, 0x008080, 0x004040, // cyans
    0xC0C0FF, 0x8080FF, 0x0000FF, 0x0000C0, 0x000040, 0x000080, // blues
    0xFFC0FF, 0xFF80FF, 0xFF00FF, 0xC000C0, 0x800080, 0x400040, // magentas
};

void EditorModel::choose(int scale) {
    if (working == scale)
        return;
    working = scale;
    boxes.fill(blank);
}

void EditorModel::release(int scale, int cell, Qt::MouseButton button) {
    const int side = button == Qt::LeftButton ? 0 : 1;
    const int tenths = QList{5 * cell - 1100, 2 * cell - 100, 10 * cell - 600}[scale];
    const double celsius = tenths / 10.0;
    boxes[side] = QString::number(celsius, 'f', scale == hvc ? 0 : 1);
    boxes[side + 2] = QString::number(celsius * 9.0 / 5.0 + 32.0, 'g', 15);
    if (last_clicked != scale)
        boxes[1 - side] = boxes[3 - side] = blank;
    (side == 0 ? start : end) = cell;
    working = scale;
    last_clicked = scale;
}

void EditorModel::copy_colour(int scale, int cell) {
    const int colour = cells[scale][cell];
    current = {colour % 256, colour / 256 % 256, colour / 65536};
}

void EditorModel::apply() {
    bool start_is_number = false;
    bool end_is_number = false;
    const double from = boxes[0].toDouble(&start_is_number);
    const double to = boxes[1].toDouble(&end_is_number);
    if (!start_is_number || !end_is_number || from > to) {
        told << "Choose a range by left clicking for start and right clicking for end";
        return;
    }
    for (int cell = start; cell <= end; ++cell)
        cells[working][cell] = current[0] + 256 * current[1] + 65536 * current[2];
    if (working == hvc)
        refresh_preview();
}

void EditorModel::reset() {
    if (working != hvc)
        return;
    boxes.fill(blank);
    start = 0;
    end = 99;
}

void EditorModel::move_brightness(int position) {
    if (working != hvc || position == brightness)
        return;
    const int steps = position - brightness;
    // The shift is part of writing a preview, and fails with it; then the preview is tried again.
    if (write(preview, hvc))
        for (int cell = start; cell <= std::min(end, 99); ++cell)
            cells[hvc][cell] = shifted(cells[hvc][cell], 4 * steps + (steps < 0 ? -1 : 1));
    refresh_preview();
}

void EditorModel::generate(int scale, const Path& chosen, bool yes) {
    if (working != scale)
        return;
    if (!chosen) {
        told << "Operation Cancelled";
    } else {
        out_path = *chosen;
        prompts << (files.contains(out_path) ? "OVERWRITE " : "Write ") + out_path + "?";
        if (yes)
            write(out_path, scale);
    }
    if (scale == hvc)
        show_picture();
}

bool EditorModel::write(const QString& path, int scale) {
    out_path = path;
    if (folders.contains(path)) {
        told << (scale == thermal ? "Error# 75" : "Error # 75") +
                    QString(" A problem occured during file creation");
        return false;
    }
    const QByteArray bytes = image(scale);
    files[path] = bytes + files[path].mid(bytes.size()); // a longer file keeps its end
    return true;
}

void EditorModel::refresh_preview() {
    write(preview, hvc);
    show_picture();
}

// What cannot be shown leaves the picture as it was.
void EditorModel::show_picture() {
    const QImage found = files.contains(out_path) ? image_in(out_path) : QImage();
    if (!found.isNull())
        picture = found;
}

QByteArray EditorModel::image(int scale) const {
    const QByteArrayList sizes{"40010000 01000000", "FA000000 01000000", "64000000 00010000"};
    QByteArray bytes =
        QByteArray::fromHex("424D 00000000 0000 0000 36000000 28000000" + sizes[scale] +
                            "0100 1800 00000000 00000000 120B0000 120B0000 00000000 00000000");
    for (int row = 0; row < (scale == hvc ? 256 : 1); ++row)
        for (int colour : cells[scale]) {
            colour = scale == hvc ? shifted(colour, row - 128) : colour;
            for (const int channel : {65536, 256, 1})
                bytes.append(static_cast<char>(colour / channel % 256));
        }
    return scale == sea ? bytes.append(2, '\0') : bytes;
}

void EditorModel::load(const Path& chosen) {
    const auto fail = [this](const char* number) {
        told << QString("Error # %1 Cannot Read File").arg(number);
    };
    if (!chosen) {
        told << "Operation Cancelled";
        return;
    }
    out_path = *chosen;
    if (!files.contains(out_path))
        return fail(folders.contains(out_path) ? "75" : "53");
    const QByteArray& bytes = files[out_path];
    if (!bytes.startsWith("BM")) {
        told << "Selected file is not a color palette";
        return;
    }
    using Size = std::pair<qsizetype, qsizetype>;
    const Size size = bytes.size() < 54 ? Size{} : Size{number_at(bytes, 18), number_at(bytes, 22)};
    const auto scale = QList<Size>{{320, 1}, {250, 1}, {100, 256}}.indexOf(size);
    if (scale < 0) {
        told << "Not a Cirrava PAL file... It's probably corrupted";
        return;
    }

    // Whole groups of four bytes before the pixels are skipped, a rest of them is not.
    qsizetype place = 54 + std::max<qsizetype>(0, number_at(bytes, 10) - 54) / 4 * 4;
    constexpr qsizetype hvc_row = 300;
    if (scale == hvc && bytes.size() < place + 127 * hvc_row)
        return fail("62");
    if (scale == hvc)
        place += 126 * hvc_row;
    for (auto cell = cells[scale].begin(); cell != cells[scale].end(); ++cell, place += 3)
        if (place + 3 <= bytes.size())
            *cell = byte_at(bytes, place + 2) + 256 * byte_at(bytes, place + 1) +
                    65536 * byte_at(bytes, place);
    if (scale == hvc && image_in(out_path).isNull())
        return fail("481");
    if (scale == hvc)
        show_picture();
}

QStringList EditorModel::window() const {
    QStringList lines = boxes;
    lines << names[working] << "green: " + names[working] << "enabled:";
    lines << QStringList{"thermal_command", "sea_command", "hvc_command"}[working];
    if (working == hvc)
        lines << "Command1"
              << "HScroll4";
    for (const int channel : current)
        lines << QString("slider %1, readout %1").arg(channel);
    lines << "swatch " + QColor(current[0], current[1], current[2]).name();
    lines << QString("brightness %1").arg(brightness);
    return lines << "told:" << told << "asked:" << prompts;
}

} // namespace cirrava
