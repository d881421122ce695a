#include "scale_editor/palette_history.h"

namespace cirrava {

void PaletteHistory::remember() {
    const Palettes now = palettes();
    if (now == states_[current_])
        return;
    states_.resize(++current_);
    states_ << now;
}

void PaletteHistory::go_to(qsizetype state) {
    if (state < 0 || state >= states_.size())
        return;
    current_ = state;
    const auto hvc_before = scales_.Label3.colours();
    for (const ScaleKind kind : all_scales)
        scales_.cells(kind).set_colours(states_[state][static_cast<std::size_t>(kind)]);
    if (scales_.Label3.colours() != hvc_before)
        hvc_changed_();
}

PaletteHistory::Palettes PaletteHistory::palettes() {
    return {scales_.thermal_char.colours(), scales_.Label2.colours(), scales_.Label3.colours()};
}

} // namespace cirrava
