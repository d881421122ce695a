#pragma once

#include "scale_editor/scale.h"

namespace cirrava {

enum class RangeEnd { start, end };

// The cells of one scale from `first` to `last`, both of them included.
struct Range {
    ScaleKind kind = ScaleKind::thermal;
    int first = 0;
    int last = 0;
};

} // namespace cirrava
