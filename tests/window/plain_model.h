#pragma once

#include <QStringList>
#include <algorithm>

namespace cirrava {

using Cells = QList<int>; // colours: red + 256 * green + 65536 * blue

inline int shifted(int colour, int levels) {
    const auto shift = [=](int value) { return std::clamp(value % 256 + levels, 0, 255); };
    return shift(colour) + 256 * shift(colour / 256) + 65536 * shift(colour / 65536);
}

// What the main window should hold and show, in the plainest way. It uses nothing of the program,
// so that a slip in one of the two shows. What needs an enabled control does nothing without it.
struct Model {
    enum { thermal, sea, hvc };
    const QList<int> last_cells{319, 249, 99};

    QList<Cells> cells{Cells(320, 0), Cells(250, 0), Cells(100, 0)};
    int working = thermal;
    int last_clicked = -1;
    QList<int> ends{0, 0}; // of the range
    QStringList boxes{"", "", "", ""};
    QList<int> current{0, 0, 0}; // red, green, blue
    Cells picture;               // of which the HVC picture is made
    QStringList told;
    QList<QList<Cells>> past, future; // as many as were undone

    int colour() const { return current[0] + 256 * current[1] + 65536 * current[2]; }

    void remember(const QList<Cells>& before) {
        if (cells == before)
            return;
        past << before;
        future.clear();
    }

    void step_through(QList<QList<Cells>>& from, QList<QList<Cells>>& to) {
        if (from.isEmpty())
            return;
        to << cells;
        cells = from.takeLast();
        if (cells[hvc] != to.last()[hvc])
            picture = cells[hvc];
    }

    void choose(int scale) {
        if (working != scale)
            boxes.fill(" ");
        working = scale;
    }

    // Side 0 is the start of the range, side 1 its end.
    void mark(int scale, int cell, int side) {
        const double celsius = QList{5 * cell - 1100, 2 * cell - 100, 10 * cell - 600}[scale] / 10.;
        boxes[side] = QString::number(celsius, 'f', scale == hvc ? 0 : 1);
        boxes[side + 2] = QString::number(celsius * 9.0 / 5.0 + 32.0, 'g', 15);
        if (last_clicked != scale)
            boxes[1 - side] = boxes[3 - side] = " ";
        ends[side] = cell;
        working = last_clicked = scale;
    }

    bool is_blank(int side) const { return boxes[side].trimmed().isEmpty(); }

    // Keys in a box of the range.
    void step(int side, int by) {
        const int other_end = is_blank(1 - side) ? 0 : ends[1 - side];
        const bool only_there = is_blank(side) && std::abs(by) < 1000;
        const int to = only_there ? other_end : ends[side] + by;
        mark(working, std::clamp(to, 0, last_cells[working]), side);
    }

    // Whether the full line is under it.
    bool is_selected(int scale, int cell) const {
        const bool whole = !is_blank(0) && !is_blank(1) && ends[0] <= ends[1];
        const bool at_end = (cell == ends[0] && !is_blank(0)) || (cell == ends[1] && !is_blank(1));
        return scale == working && (at_end || (whole && ends[0] < cell && cell < ends[1]));
    }

    void take(int colour) { current = {colour % 256, colour / 256 % 256, colour / 65536}; }

    void apply() {
        if (is_blank(0) || is_blank(1) || ends[0] > ends[1]) {
            told << "Choose a range by left clicking for start and right clicking for end";
            return;
        }
        std::fill_n(cells[working].begin() + ends[0], ends[1] - ends[0] + 1, colour());
        if (working == hvc)
            picture = cells[hvc];
    }

    void reset() {
        if (working != hvc)
            return;
        boxes.fill(" ");
        ends = {0, 99};
    }

    void move_brightness(int position) {
        const int steps = position - 5;
        if (working != hvc || steps == 0)
            return;
        for (int cell = ends[0]; cell <= std::min(ends[1], 99); ++cell)
            cells[hvc][cell] = shifted(cells[hvc][cell], 4 * steps + (steps < 0 ? -1 : 1));
        picture = cells[hvc];
    }
};

} // namespace cirrava
