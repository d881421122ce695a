#include "scale_editor/tick_labels.h"

#include "scale_editor/qt_values.h"

#include <algorithm>

namespace cirrava {

void write_tick_labels(ScaleKind kind, std::span<QLabel> labels) {
    constexpr int cells_per_label = 20;
    int cell = 0;
    for (QLabel& label : labels) {
        label.setText(to_qt(tick_text(kind, std::min(cell, cell_count(kind) - 1))));
        cell += cells_per_label;
    }
}

} // namespace cirrava
