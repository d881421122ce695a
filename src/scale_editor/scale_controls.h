#pragma once

#include "scale_editor/cell_array.h"
#include "scale_editor/range_box.h"
#include "widgets/button.h"
#include "widgets/number_bar.h"

#include <QLabel>

namespace cirrava {

// The controls of the three scales: the choice of one, its cells, the generation of its file, and
// what only the HVC scale has.
struct ScaleControls {
    QLabel Label5; // the working scale
    Button thermal_butt, Sea_butt, hvc_butt;
    CellArray thermal_char{ScaleKind::thermal};
    CellArray Label2{ScaleKind::sea};
    CellArray Label3{ScaleKind::hvc};
    Button thermal_command, sea_command, hvc_command;
    Button Command1;           // Reset
    NumberBar HScroll4{10, 5}; // brightness, at rest in the middle

    CellArray& cells(ScaleKind kind) {
        return kind == ScaleKind::thermal ? thermal_char : kind == ScaleKind::sea ? Label2 : Label3;
    }
};

// The ends of the selected range as temperatures.
struct RangeBoxes {
    RangeBox Text1, Text2;  // start and end, degrees Celsius
    QLineEdit Text3, Text4; // start and end, degrees Fahrenheit
};

} // namespace cirrava
