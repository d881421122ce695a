#include "scale_editor/palette_history.h"

namespace cirrava {

class PaletteHistory::Change : public QUndoCommand {
public:
    Change(PaletteHistory& history, Palettes before, Palettes after)
        : history_(history), before_(std::move(before)), after_(std::move(after)) {}

    void undo() override { history_.restore(before_); }
    void redo() override { history_.restore(after_); }

private:
    PaletteHistory& history_;
    Palettes before_;
    Palettes after_;
};

void PaletteHistory::record(const std::function<void()>& action) {
    Palettes before = palettes();
    action();
    Palettes after = palettes();
    if (after != before)
        stack_.push(new Change(*this, std::move(before), std::move(after))); // the stack owns it
}

PaletteHistory::Palettes PaletteHistory::palettes() {
    Palettes all;
    for (const ScaleKind kind : all_scales) {
        const auto colours = scales_.cells(kind).colours();
        all[static_cast<std::size_t>(kind)].assign(colours.begin(), colours.end());
    }
    return all;
}

// Changes nothing when a new change comes to the stack, which redoes it at once.
void PaletteHistory::restore(const Palettes& wanted) {
    const Palettes now = palettes();
    for (const ScaleKind kind : all_scales) {
        const auto i = static_cast<std::size_t>(kind);
        if (now[i] == wanted[i])
            continue;
        scales_.cells(kind).set_colours(wanted[i]);
        if (kind == ScaleKind::hvc)
            hvc_changed_();
    }
}

} // namespace cirrava
