#pragma once

#include "colour/colour_controls.h"
#include "scale_editor/continuation_arrow.h"
#include "scale_editor/scale_controls.h"
#include "widgets/line.h"
#include "widgets/picture_box.h"

namespace cirrava {

// Every control of the main window. The groups that the controllers work with are bases.
struct CirravaControls : ScaleControls, RangeBoxes, ColourControls {
    // Title and decoration
    QLabel Label1, Label32, Image1;
    Line Line1, Line2;

    // Around the scales: captions, temperatures, row ends
    QLabel Label18, Label19, Label20;
    std::array<QLabel, 17> T1C;
    std::array<QLabel, 14> SS;
    std::array<QLabel, 6> hvc;
    ContinuationArrow Label22, Label23, Label24, Label25, Label26;

    // HVC preview and brightness
    Button hvc_help;
    QLabel Label21, Label30, Label31, Label33;
    PictureBox Picture1;

    // Captions of the range boxes
    QLabel Label4, Label6, Label7, Label8, Label9, Label10, Label11;

    // Colour tools
    std::array<Button, 48> color;
    QLabel Label12, Label13, Label14;
    Button pickcolor;
    Button Command2;

    // Window buttons
    Button Command3, Command4, Command5, Command6;
};

} // namespace cirrava
