#include "scale_editor/range_selection.h"

#include "scale_editor/number_text.h"
#include "scale_editor/qt_values.h"

#include <algorithm>

namespace cirrava {

namespace {

const QString blank = QStringLiteral(" ");

} // namespace

void RangeSelection::choose_scale(ScaleKind kind) {
    if (working_scale_.kind() == kind)
        return;
    working_scale_.set(kind);
    blank_boxes();
}

void RangeSelection::cell_released(ScaleKind kind, int cell, Qt::MouseButton button) {
    working_scale_.set(kind);
    const bool is_start = button == Qt::LeftButton;
    QLineEdit& clicked_end = is_start ? boxes_.Text1 : boxes_.Text2;
    QLineEdit& other_end = is_start ? boxes_.Text2 : boxes_.Text1;

    clicked_end.setText(to_qt(celsius_text(kind, cell)));
    (is_start ? state_.range_start : state_.range_end) = cell;
    if (state_.last_scale != kind)
        other_end.setText(blank);
    state_.last_scale = kind;
}

void RangeSelection::step(Qt::MouseButton button, int cells) {
    const auto kind = working_scale_.kind();
    if (!kind)
        return;
    const auto start = cell_of(boxes_.Text1);
    const auto end = cell_of(boxes_.Text2);
    const int from =
        (button == Qt::LeftButton ? start : end).value_or(start.value_or(end.value_or(0)));
    cell_released(*kind, std::clamp(from + cells, 0, cell_count(*kind) - 1), button);
}

std::optional<int> RangeSelection::cell_of(const QLineEdit& box) const {
    if (!numeric_value(box.text().toStdString()))
        return std::nullopt;
    return &box == &boxes_.Text1 ? state_.range_start : state_.range_end;
}

void RangeSelection::reset() {
    blank_boxes();
    state_.range_start = 0;
    state_.range_end = cell_count(ScaleKind::hvc) - 1;
}

bool RangeSelection::is_complete() const {
    const auto start = numeric_value(boxes_.Text1.text().toStdString());
    const auto end = numeric_value(boxes_.Text2.text().toStdString());
    return start && end && *start <= *end;
}

void RangeSelection::blank_boxes() {
    boxes_.Text1.setText(blank);
    boxes_.Text2.setText(blank);
}

void show_fahrenheit(const QLineEdit& celsius, QLineEdit& fahrenheit) {
    fahrenheit.setText(to_qt(fahrenheit_text(celsius.text().toStdString())));
    fahrenheit.setCursorPosition(0); // of a number wider than the box, the first digits show
}

} // namespace cirrava
