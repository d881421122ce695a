#pragma once

#include "colour/current_colour.h"
#include "platform/dialogs.h"
#include "scale_editor/cell_array.h"
#include "scale_editor/range_selection.h"

namespace cirrava {

// Gives the selected range of the working scale the current colour, and on the HVC scale has the
// preview refreshed.
class ApplyColour {
public:
    ApplyColour(const EditorState& state, const RangeSelection::Boxes& boxes,
                const WorkingScale& working_scale, const CurrentColour& current_colour,
                const Scales& scales, const Dialogs& dialogs, std::function<void()> refresh_preview)
        : state_(state), boxes_(boxes), working_scale_(working_scale),
          current_colour_(current_colour), scales_(scales), dialogs_(dialogs),
          refresh_preview_(std::move(refresh_preview)) {}

    // Tells the user how to choose a range when the boxes hold none.
    void apply();

private:
    bool range_is_chosen() const;

    const EditorState& state_;
    RangeSelection::Boxes boxes_;
    const WorkingScale& working_scale_;
    const CurrentColour& current_colour_;
    Scales scales_;
    const Dialogs& dialogs_;
    std::function<void()> refresh_preview_;
};

} // namespace cirrava
