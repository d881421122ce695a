#pragma once

#include "scale_editor/scale_controls.h"

#include <QUndoStack>
#include <functional>

namespace cirrava {

// Every change of cells, so that it can be taken back and brought back. It goes back to the start
// of the program.
class PaletteHistory {
public:
    // `hvc_changed` is called after each step back or forth that changed HVC cells.
    PaletteHistory(ScaleControls& scales, std::function<void()> hvc_changed)
        : scales_(scales), hvc_changed_(std::move(hvc_changed)) {}

    // Does `action`, one action of the user, and remembers the cells that it changed; an action
    // that changed none is not remembered.
    void record(const std::function<void()>& action);

    void undo() { stack_.undo(); }
    void redo() { stack_.redo(); }

private:
    using Palettes = std::array<std::vector<Colour>, all_scales.size()>; // by scale
    class Change;

    Palettes palettes();
    void restore(const Palettes& wanted);

    ScaleControls& scales_;
    std::function<void()> hvc_changed_;
    QUndoStack stack_;
};

} // namespace cirrava
