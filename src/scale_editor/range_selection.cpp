#include "scale_editor/range_selection.h"

#include "scale_editor/qt_values.h"

namespace cirrava {

namespace {

const QString blank = QStringLiteral(" ");

void follow(const QLineEdit& celsius, QLineEdit& fahrenheit) {
    fahrenheit.setText(to_qt(fahrenheit_text(celsius.text().toStdString())));
    fahrenheit.setCursorPosition(0); // of a number wider than the box, the first digits show
}

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

void RangeSelection::start_changed() {
    follow(boxes_.Text1, boxes_.Text3);
}

void RangeSelection::end_changed() {
    follow(boxes_.Text2, boxes_.Text4);
}

void RangeSelection::reset() {
    blank_boxes();
    state_.range_start = 0;
    state_.range_end = cell_count(ScaleKind::hvc) - 1;
}

void RangeSelection::blank_boxes() {
    boxes_.Text1.setText(blank);
    boxes_.Text2.setText(blank);
}

} // namespace cirrava
