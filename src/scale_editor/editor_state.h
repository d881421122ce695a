#pragma once

#include "scale_editor/scale.h"

#include <optional>

namespace cirrava {

// The selected range, as cell indices of whichever scale was clicked. Nothing orders the two ends
// or ties them to the working scale; whether they form a range shows in the range boxes.
struct EditorState {
    int range_start = 0;
    int range_end = 0;
    std::optional<ScaleKind> last_scale; // on which a cell was last clicked
};

} // namespace cirrava
