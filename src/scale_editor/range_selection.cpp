#include "scale_editor/range_selection.h"

#include "scale_editor/number_text.h"
#include "scale_editor/qt_values.h"

#include <algorithm>
#include <cstdlib>

namespace cirrava {

namespace {

constexpr QLatin1StringView blank(" ");

std::optional<double> celsius_in(const QLineEdit& box) {
    return numeric_value(box.text().toStdString());
}

} // namespace

void RangeSelection::choose_scale(ScaleKind kind) {
    if (working_scale_.kind() == kind)
        return;
    working_scale_.set(kind);
    blank_boxes();
    underline_cells();
}

void RangeSelection::mark(ScaleKind kind, int cell, RangeEnd end) {
    working_scale_.set(kind);
    const bool is_start = end == RangeEnd::start;
    QLineEdit& marked_box = is_start ? boxes_.Text1 : boxes_.Text2;
    QLineEdit& other_box = is_start ? boxes_.Text2 : boxes_.Text1;

    marked_box.setText(to_qt(celsius_text(kind, cell)));
    (is_start ? state_.range_start : state_.range_end) = cell;
    if (state_.last_scale != kind)
        other_box.setText(blank);
    state_.last_scale = kind;
    underline_cells();
}

void RangeSelection::step(RangeEnd end, int cells) {
    const ScaleKind kind = working_scale_.kind();
    const auto other_cell =
        cell_of(end == RangeEnd::start ? RangeEnd::end : RangeEnd::start).value_or(0);
    const int last = cell_count(kind) - 1;
    if (cell_of(end) || std::abs(cells) > last)
        mark(kind, std::clamp(cell_of(end).value_or(0) + cells, 0, last), end);
    else
        mark(kind, other_cell, end);
}

std::optional<int> RangeSelection::cell_of(RangeEnd end) const {
    const bool is_start = end == RangeEnd::start;
    if (!celsius_in(is_start ? boxes_.Text1 : boxes_.Text2))
        return std::nullopt;
    return is_start ? state_.range_start : state_.range_end;
}

void RangeSelection::reset() {
    blank_boxes();
    state_.range_start = 0;
    state_.range_end = cell_count(ScaleKind::hvc) - 1;
    underline_cells();
}

std::optional<Range> RangeSelection::range() const {
    const auto start = celsius_in(boxes_.Text1);
    const auto end = celsius_in(boxes_.Text2);
    if (!start || !end || *start > *end)
        return std::nullopt;
    return Range{working_scale_.kind(), state_.range_start, state_.range_end};
}

void RangeSelection::blank_boxes() {
    boxes_.Text1.setText(blank);
    boxes_.Text2.setText(blank);
}

void RangeSelection::underline_cells() {
    for (const ScaleKind kind : all_scales)
        scales_.cells(kind).underline(kind == working_scale_.kind() ? underlines()
                                                                    : QList<Underline>());
}

// Of the working scale.
QList<Underline> RangeSelection::underlines() const {
    if (const auto marked = range())
        return {{marked->first, marked->last}};
    QList<Underline> runs;
    for (const auto cell : {cell_of(RangeEnd::start), cell_of(RangeEnd::end)})
        if (cell)
            runs << Underline{*cell, *cell};
    const bool brightness_acts = runs.isEmpty() && working_scale_.kind() == ScaleKind::hvc;
    const int last = std::min(state_.range_end, cell_count(ScaleKind::hvc) - 1);
    if (brightness_acts && state_.range_start <= last)
        runs << Underline{state_.range_start, last, true};
    return runs;
}

void show_fahrenheit(const QLineEdit& celsius, QLineEdit& fahrenheit) {
    fahrenheit.setText(to_qt(fahrenheit_text(celsius.text().toStdString())));
    fahrenheit.setCursorPosition(0); // of a number wider than the box, the first digits show
}

} // namespace cirrava
