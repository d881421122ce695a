#pragma once

#include "scale_editor/scale.h"

#include <QLabel>
#include <span>

namespace cirrava {

// Writes the temperatures under a scale: label i names cell 20 * i, the last label the last cell.
void write_tick_labels(ScaleKind kind, std::span<QLabel> labels);

} // namespace cirrava
