#include "scale_editor/palette_history.h"

#include <utility>

namespace cirrava {

PaletteHistory::PaletteHistory(const AllScales& scales, std::function<void()> hvc_changed)
    : scales_(scales), hvc_changed_(std::move(hvc_changed)) {
    for (const ScaleControls& scale : scales)
        QObject::connect(&scale.cells, &CellArray::changed, &listener_, [this] { remember(); });
}

// An action of the user changes the cells of one scale, and all of them at once. So neighbours in
// the history differ in one scale, and an undo or redo leaves nothing to remember.
void PaletteHistory::remember() {
    const Palettes now = palettes();
    if (now == past_and_future_[current_])
        return;
    past_and_future_.resize(++current_);
    past_and_future_ << now;
}

void PaletteHistory::go_to(qsizetype index) {
    if (index < 0 || index >= past_and_future_.size())
        return;
    const bool changes_hvc = past_and_future_[index].back() != past_and_future_[current_].back();
    current_ = index;
    for (std::size_t i = 0; i < scales_.size(); ++i)
        scales_[i].cells.set_colours(std::as_const(past_and_future_)[index][i]);
    if (changes_hvc)
        hvc_changed_();
}

PaletteHistory::Palettes PaletteHistory::palettes() const {
    return {scales_[0].cells.colours(), scales_[1].cells.colours(), scales_[2].cells.colours()};
}

} // namespace cirrava
