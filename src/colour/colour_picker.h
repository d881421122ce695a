#pragma once

#include "colour/current_colour.h"
#include "platform/common_dialog.h"

namespace cirrava {

// Takes the current colour from the colour dialog. A cancel changes nothing and says nothing.
class ColourPicker {
public:
    ColourPicker(CommonDialog& cdlopen, const Dialogs& dialogs, CurrentColour& current_colour)
        : cdlopen_(cdlopen), dialogs_(dialogs), current_colour_(current_colour) {}

    void pick();

private:
    CommonDialog& cdlopen_;
    const Dialogs& dialogs_;
    CurrentColour& current_colour_;
};

} // namespace cirrava
