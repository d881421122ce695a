#pragma once

#include "scale_editor/scale_controls.h"

#include <functional>

namespace cirrava {

// The cells as they were after every change of them, so that changes can be taken back and brought
// back. It goes back to its own making.
class PaletteHistory {
public:
    // `hvc_changed` is called after each step back or forth that changed HVC cells.
    PaletteHistory(ScaleControls& scales, std::function<void()> hvc_changed)
        : scales_(scales), hvc_changed_(std::move(hvc_changed)) {}

    // To be called after each action of the user that may have changed cells. What was taken back
    // before a change cannot be brought back after it.
    void remember();

    void undo() { go_to(current_ - 1); }
    void redo() { go_to(current_ + 1); }

private:
    // By scale. The lists of scales that did not change share their colours.
    using Palettes = std::array<QList<Colour>, all_scales.size()>;

    Palettes palettes();
    void go_to(qsizetype state);

    ScaleControls& scales_;
    std::function<void()> hvc_changed_;
    QList<Palettes> states_{palettes()};
    qsizetype current_ = 0;
};

} // namespace cirrava
