#pragma once

#include "widgets/number_bar.h"
#include "widgets/swatch.h"

#include <QLabel>
#include <array>

namespace cirrava {

// The current colour, and the sliders and read-outs of its channels.
struct ColourControls {
    struct Channel {
        NumberBar& slider;
        QLabel& readout;
    };

    Swatch sample;
    NumberBar HScroll1{255}, HScroll2{255}, HScroll3{255};
    QLabel Label15, Label16, Label17;

    // Red, green, blue.
    std::array<Channel, 3> channels() {
        return {{{HScroll1, Label15}, {HScroll2, Label16}, {HScroll3, Label17}}};
    }
};

} // namespace cirrava
