#include "colour/apply_colour.h"

namespace cirrava {

std::optional<ScaleKind> apply_colour(Colour color, const RangeSelection& selection,
                                      const EditorState& state, const WorkingScale& working_scale,
                                      ScaleControls& scales, const Dialogs& dialogs) {
    if (!selection.is_complete()) {
        dialogs.tell("Choose a range by left clicking for start and right clicking for end");
        return std::nullopt;
    }
    const auto kind = working_scale.kind();
    for (int cell = state.range_start; kind && cell <= state.range_end; ++cell)
        scales.cells(*kind).set_colour(cell, color);
    return kind;
}

} // namespace cirrava
