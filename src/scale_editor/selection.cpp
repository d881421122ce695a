#include "scale_editor/selection.h"

#include "scale_editor/qt_values.h"

#include <algorithm>

namespace cirrava {

void Selection::choose(const ScaleControls& scale) {
    if (&scale == working_scale_)
        return;
    working_scale_ = &scale;
    show_working_scale();
    blank();
}

void Selection::mark(const ScaleControls& scale, int cell, Side side) {
    choose(scale);
    Bound& marked = side == Side::start ? range_start_ : range_end_;
    marked.cell = cell;
    marked.shown = true;
    show_range();
}

void Selection::step(Side side, int cells) {
    const auto own = cell_of(side);
    const auto other = cell_of(side == Side::start ? Side::end : Side::start);
    const int to = own ? *own + cells : other.value_or(0);
    mark(*working_scale_, std::clamp(to, 0, cell_count(working_scale_->kind()) - 1), side);
}

void Selection::send_to_limit(Side side, bool warmest) {
    mark(*working_scale_, warmest ? cell_count(working_scale_->kind()) - 1 : 0, side);
}

void Selection::reset() {
    range_start_.cell = 0;
    range_end_.cell = cell_count(ScaleKind::hvc) - 1;
    blank();
}

std::optional<int> Selection::cell_of(Side side) const {
    const Bound& asked = side == Side::start ? range_start_ : range_end_;
    return asked.shown ? std::optional(asked.cell) : std::nullopt;
}

std::optional<Range> Selection::range() const {
    if (!range_start_.shown || !range_end_.shown || range_start_.cell > range_end_.cell)
        return std::nullopt;
    return Range{range_start_.cell, range_end_.cell};
}

Range Selection::brightness_range() const {
    if (working_scale_->kind() != ScaleKind::hvc)
        return {};
    return {range_start_.cell, std::min(range_end_.cell, cell_count(ScaleKind::hvc) - 1)};
}

QList<Range> Selection::marked_cells() const {
    if (const auto whole = range())
        return {*whole};
    QList<Range> cells;
    for (const Bound& bound : {range_start_, range_end_})
        if (bound.shown)
            cells << Range{bound.cell, bound.cell};
    return cells;
}

void Selection::blank() {
    range_start_.shown = range_end_.shown = false;
    show_range();
}

void Selection::show_working_scale() {
    Label5_.setText(to_qt(kind_text(working_scale_->kind())));
    // Disabled, a button would hand the focus to some other control.
    if (std::ranges::any_of(scales_, [](auto& scale) { return scale.generate.hasFocus(); })) {
        working_scale_->generate.setEnabled(true);
        working_scale_->generate.setFocus();
    }
    for (const ScaleControls& scale : scales_) {
        const bool working = &scale == working_scale_;
        scale.choose.set_face(working ? QColor(0, 255, 0) : QColor());
        scale.choose.setAccessibleDescription(working ? QString("working scale") : QString());
        scale.generate.setEnabled(working);
        for (QWidget* control : scale.others)
            control->setEnabled(working);
    }
}

void Selection::show_range() {
    const ScaleKind kind = working_scale_->kind();
    for (const auto& [boxes, cell, shown] : {range_start_, range_end_}) {
        boxes.celsius.show_cell(kind, shown ? std::optional(cell) : std::nullopt);
        const QString text = shown ? to_qt(fahrenheit_text(kind, cell)) : QString(" ");
        boxes.fahrenheit.setText(text);
        // Of a box without a value, screen readers say the name alone.
        boxes.fahrenheit.setAccessibleName(boxes.fahrenheit.accessibleDescription() + " " + text);
    }
    for (const ScaleControls& scale : scales_) {
        const bool working = &scale == working_scale_;
        scale.cells.underline(working ? marked_cells() : QList<Range>(),
                              working ? brightness_range() : Range());
    }
}

} // namespace cirrava
