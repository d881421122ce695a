#pragma once

#include "scale_editor/colour.h"
#include "scale_editor/scale_controls.h"

#include <QList>
#include <array>
#include <functional>

namespace cirrava {

// The palettes as they were after each change of cells, so that changes can be undone and redone.
// The first one is that of its making. What was undone before a change cannot be redone after it.
class PaletteHistory {
public:
    // Calls `hvc_changed` after each undo or redo that changed HVC cells.
    PaletteHistory(const AllScales& scales, std::function<void()> hvc_changed);

    void undo() { go_to(current_ - 1); }
    void redo() { go_to(current_ + 1); }

private:
    // By scale. Where nothing was undone between them, neighbours share the colours of the scales
    // in which they do not differ.
    using Palettes = std::array<QList<Colour>, std::tuple_size_v<AllScales>>;

    Palettes palettes() const;
    void remember();
    void go_to(qsizetype index);

    const AllScales& scales_;
    std::function<void()> hvc_changed_;
    QList<Palettes> past_and_future_{palettes()};
    qsizetype current_ = 0;
    QObject listener_; // whose end is that of the connections
};

} // namespace cirrava
