#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <map>
#include <optional>

namespace cirrava {

inline const QStringList names{"Thermal", "Sea", "HVC"};
inline const QStringList titles{"Create Thermal", "Create Sea Surface Palette",
                                "Create HVC Palette"};
inline const QStringList proposals{"thermal.bmp", "sea.bmp", "hvc.bmp"};
using Cells = QList<QRgb>;
using Path = std::optional<QString>;

inline QRgb shifted(QRgb colour, int levels) {
    const auto shift = [=](int value) { return std::clamp(value + levels, 0, 255); };
    return qRgb(shift(qRed(colour)), shift(qGreen(colour)), shift(qBlue(colour)));
}

// What the main window should hold and show, in the plainest way. It uses nothing of the program,
// so that a slip in one of the two shows. What needs an enabled control does nothing without it.
struct Model {
    enum { thermal, sea, hvc };

    QList<Cells> cells{Cells(320, qRgb(0, 0, 0)), Cells(250, qRgb(0, 0, 0)),
                       Cells(100, qRgb(0, 0, 0))};
    int working = thermal;
    int last_clicked = -1;
    int start = 0;
    int end = 0;
    QStringList boxes{"", "", "", ""};
    std::array<int, 3> current{}; // red, green, blue
    Cells picture;                // of which the HVC picture is made
    std::map<QString, Cells> files;
    QString folder = QCoreApplication::applicationDirPath(); // of the next file dialog
    QString file;
    QStringList heard;
    QList<QList<Cells>> past, future; // as many as were undone

    void step_through(QList<QList<Cells>>& from, QList<QList<Cells>>& to) {
        if (from.isEmpty())
            return;
        to << cells;
        cells = from.takeLast();
        if (cells[hvc] != to.last()[hvc])
            picture = files["~~temphvc.bmp"] = cells[hvc];
    }

    void choose(int scale) {
        if (working != scale)
            boxes.fill(" ");
        working = scale;
    }

    void release(int scale, int cell, Qt::MouseButton button) {
        const int side = button == Qt::LeftButton ? 0 : 1;
        const double celsius = QList{5 * cell - 1100, 2 * cell - 100, 10 * cell - 600}[scale] / 10.;
        boxes[side] = QString::number(celsius, 'f', scale == hvc ? 0 : 1);
        boxes[side + 2] = QString::number(celsius * 9.0 / 5.0 + 32.0, 'g', 15);
        if (last_clicked != scale)
            boxes[1 - side] = boxes[3 - side] = " ";
        (side == 0 ? start : end) = cell;
        working = last_clicked = scale;
    }

    // Keys in a box of the range.
    void step(Qt::MouseButton button, int by) {
        const int other = button == Qt::LeftButton ? 1 : 0;
        const bool from_other = boxes[1 - other].trimmed().isEmpty();
        const bool from_first = from_other && boxes[other].trimmed().isEmpty();
        const int from = from_first ? 0 : (other == 1) == from_other ? end : start;
        const int last = QList{319, 249, 99}[working];
        release(working, std::clamp(from + by, 0, last), button);
    }

    void take(QRgb colour) { current = {qRed(colour), qGreen(colour), qBlue(colour)}; }

    void apply() {
        if (boxes[0].trimmed().isEmpty() || boxes[1].trimmed().isEmpty() || start > end) {
            heard << "Choose a range by left clicking for start and right clicking for end";
            return;
        }
        std::fill_n(cells[working].begin() + start, end - start + 1,
                    qRgb(current[0], current[1], current[2]));
        if (working == hvc)
            picture = files["~~temphvc.bmp"] = cells[hvc];
    }

    void reset() {
        if (working != hvc)
            return;
        boxes.fill(" ");
        start = 0;
        end = 99;
    }

    void move_brightness(int position) {
        const int steps = position - 5;
        if (working != hvc || steps == 0)
            return;
        for (int cell = start; cell <= std::min(end, 99); ++cell)
            cells[hvc][cell] = shifted(cells[hvc][cell], 4 * steps + (steps < 0 ? -1 : 1));
        picture = files["~~temphvc.bmp"] = cells[hvc];
    }

    void generate(int scale, const Path& path, bool yes) {
        if (working != scale)
            return;
        folder = QCoreApplication::applicationDirPath();
        file = proposals[scale];
        if (!choose_file(titles[scale], path))
            return;
        const QString verb = files.contains(file) ? "OVERWRITE " : "Write ";
        heard << "Ready to create: " + verb + *path + "?";
        if (yes)
            files[file] = cells[scale];
        if (yes && scale == hvc)
            picture = cells[hvc];
    }

    void load(const Path& path) {
        if (!choose_file("Read and Load palette", path))
            return;
        const auto found = files.find(file);
        if (found == files.end()) {
            heard << "Error # 53 Cannot Read File";
            return;
        }
        const auto scale = QList<qsizetype>{320, 250, 100}.indexOf(found->second.size());
        cells[scale] = found->second;
        if (scale != hvc)
            return;
        picture = found->second;
        for (QRgb& colour : cells[hvc])
            colour = shifted(colour, -2);
    }

    bool choose_file(const QString& title, const Path& path) {
        heard << title + ": " + file + " of *.bmp in " + folder;
        folder = path ? path->section('/', 0, -2) : folder;
        file = path ? path->section('/', -1) : file;
        if (!path)
            heard << "Operation Cancelled";
        return path.has_value();
    }
};

} // namespace cirrava
