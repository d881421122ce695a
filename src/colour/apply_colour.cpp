#include "colour/apply_colour.h"

#include "scale_editor/number_text.h"

namespace cirrava {

void ApplyColour::apply() {
    if (!range_is_chosen())
        return dialogs_.tell(
            "Choose a range by left clicking for start and right clicking for end");
    const auto kind = working_scale_.kind();
    if (!kind)
        return;
    for (int cell = state_.range_start; cell <= state_.range_end; ++cell)
        scales_[*kind].set_colour(cell, current_colour_.colour());
    if (kind == ScaleKind::hvc)
        refresh_preview_();
}

bool ApplyColour::range_is_chosen() const {
    const auto start = numeric_value(boxes_.Text1.text().toStdString());
    const auto end = numeric_value(boxes_.Text2.text().toStdString());
    return start && end && *start <= *end;
}

} // namespace cirrava
