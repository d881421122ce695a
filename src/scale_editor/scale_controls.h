#pragma once

#include "scale_editor/cell_array.h"
#include "widgets/button.h"

#include <QWidget>
#include <array>

namespace cirrava {

// The controls of one scale.
struct ScaleControls {
    Button& choose; // makes it the working scale
    CellArray& cells;
    // Enabled while it is the working scale:
    Button& generate;   // writes its file
    QWidgetList others; // which only this scale has

    ScaleKind kind() const { return cells.kind(); }
};

using AllScales = std::array<ScaleControls, 3>; // in the order of ScaleKind

} // namespace cirrava
