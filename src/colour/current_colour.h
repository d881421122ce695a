#pragma once

#include "colour/colour_controls.h"
#include "scale_editor/colour.h"

namespace cirrava {

// The colour that is applied next. It is the fill of the swatch; the three sliders and their
// read-outs mirror it.
class CurrentColour {
public:
    explicit CurrentColour(ColourControls& controls) : controls_(controls) {}

    Colour colour() const;

    // Makes `color` the current colour, whatever the sliders stood at.
    void take(Colour color);

    // The slider of `channel` has moved: the swatch takes the colour of all three, and the
    // channel's own read-out its position.
    void slider_moved(const ColourControls::Channel& channel);

private:
    void Color_to_RGB(Colour color);

    ColourControls& controls_;
};

} // namespace cirrava
