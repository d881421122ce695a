#pragma once

#include "colour/current_colour.h"
#include "scale_editor/cell_array.h"
#include "scale_editor/continuation_arrow.h"
#include "scale_editor/range_box.h"
#include "scale_editor/scale_controls.h"
#include "ui/placer.h"
#include "widgets/button.h"
#include "widgets/picture_box.h"
#include "widgets/slider.h"
#include "widgets/swatch.h"
#include "widgets/text_box.h"

#include <QLabel>
#include <array>
#include <initializer_list>
#include <span>

namespace cirrava {

// Every control of the main window, and the groups that the controllers work with.
struct CirravaControls : private Placer {
    // Puts all of them into `window`, which gets its title and size.
    explicit CirravaControls(QWidget& window);

    // Title and decoration
    QLabel Label1, Label32;
    PictureBox Image1;
    QWidget Line1, Line2;

    // The scales: their choice, cells and files
    Button thermal_butt, Sea_butt, hvc_butt;
    CellArray thermal_char{ScaleKind::thermal}, Label2{ScaleKind::sea}, Label3{ScaleKind::hvc};
    Button thermal_command, sea_command, hvc_command;

    // Around them: captions, temperatures, row ends
    QLabel Label18, Label19, Label20;
    std::array<QLabel, 17> T1C;
    std::array<QLabel, 14> SS;
    std::array<QLabel, 6> hvc;
    ContinuationArrow Label22, Label23, Label24, Label25, Label26;

    // HVC preview and brightness
    Button hvc_help;
    QLabel Label21, Label30, Label31, Label33;
    Slider HScroll4{10};
    PictureBox Picture1;

    // The range: working scale, start and end in degrees Celsius, both in Fahrenheit, captions
    QLabel Label4, Label5;
    RangeBox Text1, Text2;
    TextBox Text3, Text4;
    QLabel Label6, Label7, Label8, Label9, Label10, Label11;
    Button Command1; // Reset

    // Colour tools
    std::array<Button, 48> color;
    QLabel Label12, Label13, Label14;
    Slider HScroll1{255}, HScroll2{255}, HScroll3{255};
    QLabel Label15, Label16, Label17;
    Swatch sample;
    Button pickcolor;
    Button Command2;

    // Window buttons
    Button Command3, Command4, Command5, Command6;

    const AllScales scales{{{thermal_butt, thermal_char, thermal_command, {}},
                            {Sea_butt, Label2, sea_command, {}},
                            {hvc_butt, Label3, hvc_command, {&Command1, &HScroll4}}}};
    const ColourChannels channels{{{HScroll1, Label15}, {HScroll2, Label16}, {HScroll3, Label17}}};

private:
    // Places labels of an array from label `i` on. Label i names cell 20 * i or, where the scale
    // has no such cell, the last one.
    void ticks(std::span<QLabel> labels, const QString& name, std::size_t i, ScaleKind kind,
               int top, int width, std::initializer_list<int> lefts);
    void box(TextBox& box, const QString& name, const QString& spoken, const TwipRect& rect);
    void cells(CellArray& cells, const QString& name, const QString& spoken, int left, int top);
};

} // namespace cirrava
