#pragma once

#include "scale_editor/colour.h"
#include "widgets/slider.h"
#include "widgets/swatch.h"

#include <QLabel>
#include <array>

namespace cirrava {

struct ColourChannel {
    Slider& slider;
    QLabel& readout;
};

using ColourChannels = std::array<ColourChannel, 3>; // red, green, blue

// The colour that is applied next. It is the fill of the swatch; the three sliders and their
// read-outs mirror it, and their tracks show what each of them would make of it.
class CurrentColour {
public:
    CurrentColour(Swatch& sample, const ColourChannels& channels);

    Colour colour() const;

    // Makes `color` the current colour, whatever the sliders stood at.
    void take(Colour color);

    // Makes what the sliders stand at the current colour. Out of the user's reach, puts them back.
    void follow_sliders();

private:
    void Color_to_RGB(Colour color);

    Swatch& sample_;
    const ColourChannels& channels_;
};

} // namespace cirrava
