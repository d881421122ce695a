#pragma once

#include "platform/controls.h"
#include "scale_editor/colour.h"

#include <QLabel>

namespace cirrava {

// The colour that is applied next. It is the fill of the swatch; the three sliders and their
// readouts mirror it.
class CurrentColour {
public:
    struct Controls {
        Swatch& sample;
        NumberBar& HScroll1; // red
        NumberBar& HScroll2; // green
        NumberBar& HScroll3; // blue
        QLabel& Label15;     // readouts, in the same order
        QLabel& Label16;
        QLabel& Label17;
    };

    explicit CurrentColour(const Controls& controls) : controls_(controls) {}

    // Sets the sliders' range to 0 to 255 and shows the colour that they stand at.
    void start();

    Colour colour() const;

    // Makes `color` the current colour, whatever the sliders stood at.
    void take(Colour color);

    // A slider has moved: the swatch takes the colour of all three, and the slider's own readout
    // its position.
    void red_moved();
    void green_moved();
    void blue_moved();

private:
    void Color_to_RGB(Colour color);
    void show_sliders_colour();

    Controls controls_;
};

} // namespace cirrava
