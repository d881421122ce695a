#pragma once

#include "platform/controls.h"
#include "scale_editor/cell_array.h"
#include "scale_editor/continuation_mark.h"

#include <QLabel>
#include <QLineEdit>
#include <array>

namespace cirrava {

// Every control of the main window, under its design name.
struct CirravaControls {
    // Title and decoration
    QLabel Label1, Label32, Image1;
    Line Line1, Line2;

    // The scales: choice, caption, cells, temperatures under them, row ends, generation
    Button thermal_butt, Sea_butt, hvc_butt;
    QLabel Label18, Label19, Label20;
    CellArray thermal_char{ScaleKind::thermal};
    CellArray Label2{ScaleKind::sea};
    CellArray Label3{ScaleKind::hvc};
    std::array<QLabel, 17> T1C;
    std::array<QLabel, 14> SS;
    std::array<QLabel, 6> hvc;
    ContinuationMark Label22, Label23, Label24, Label25, Label26;
    Button thermal_command, sea_command, hvc_command;

    // HVC preview and brightness
    Button hvc_help;
    QLabel Label21, Label30, Label31, Label33;
    PictureBox Picture1;
    NumberBar HScroll4;

    // Selection read-outs
    QLabel Label4, Label5, Label6, Label7, Label8, Label9, Label10, Label11;
    QLineEdit Text1, Text2, Text3, Text4;
    Button Command1;

    // Colour tools
    std::array<Button, 48> color;
    QLabel Label12, Label13, Label14, Label15, Label16, Label17;
    NumberBar HScroll1, HScroll2, HScroll3;
    Button pickcolor;
    Swatch sample;
    Button Command2;

    // Window buttons
    Button Command3, Command4, Command5, Command6;
};

} // namespace cirrava
