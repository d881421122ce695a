#pragma once

#include "ui/cirrava_controls.h"
#include "ui/look.h"
#include "widgets/twips.h"

// The layout of the main window, as data: one row per control, in twips.
namespace cirrava::tables {

using C = CirravaControls;
template <class Control> using Member = Control C::*;

inline constexpr QRgb black = qRgb(0, 0, 0);
inline constexpr QRgb red = qRgb(255, 0, 0);
inline constexpr QRgb green = qRgb(0, 255, 0);
inline constexpr QRgb blue = qRgb(0, 0, 255);
inline constexpr QRgb yellow = qRgb(255, 255, 0);
inline constexpr QRgb light_cyan = qRgb(192, 255, 255);

inline constexpr Look standard{};
inline constexpr Look window_button{.font = {.points = 13.5}};

template <class Control> struct Row {
    Member<Control> control;
    const char* name;
    const char* caption; // of a control without one: what a screen reader says
    TwipRect rect;
    Look look;
};

inline constexpr QSize client_area(14415, 9405); // in twips

inline constexpr Row<QLabel> labels[]{
    {&C::Label1,
     "Label1",
     "Cirrava PAL",
     {6720, 480, 2295, 495},
     {.text = blue, .font = {.family = FontFamily::narrow, .points = 20.25, .bold = true}}},
    {&C::Label32,
     "Label32",
     "Version " CIRRAVA_SHORT_VERSION,
     {8160, 1080, 975, 255},
     {.text = blue}},
    {&C::Image1, "Image1", "", {5640, 0, 1080, 1440}, standard},

    {&C::Label18,
     "Label18",
     "-110C to 49.5C in 0.5C Intervals ",
     {1680, 1680, 2415, 255},
     {.text = black, .ground = light_cyan}},
    {&C::Label19,
     "Label19",
     "-10 to 39.8 in 0.2C Intervals",
     {2160, 4080, 2415, 255},
     {.ground = light_cyan}},
    {&C::Label20,
     "Label20",
     "-60 to 39 in 1C intervals",
     {2280, 6000, 1815, 255},
     {.ground = light_cyan}},

    {&C::Label21,
     "Label21",
     "HVC Palette ",
     {12840, 1560, 1335, 615},
     {.font = {.points = 12, .bold = true}}},
    {&C::Label30, "Label30", "HVC Brightness", {10080, 5760, 1215, 255}, standard},
    {&C::Label31, "Label31", "Darker", {9240, 6000, 495, 255}, standard},
    {&C::Label33, "Label33", "Lighter", {11760, 6000, 615, 255}, standard},

    {&C::Label4, "Label4", "Now Working", {0, 7200, 1095, 255}, standard},
    {&C::Label5, "Label5", "", {1080, 7200, 855, 255}, {.ground = green}},
    {&C::Label6, "Label6", "Start", {0, 7560, 375, 255}, standard},
    {&C::Label8, "Label8", "C", {1560, 7560, 255, 255}, standard},
    {&C::Label7, "Label7", "End", {1800, 7560, 495, 255}, standard},
    {&C::Label9, "Label9", "C", {3360, 7560, 255, 255}, standard},
    {&C::Label10, "Label10", "F", {1560, 7920, 255, 255}, standard},
    {&C::Label11, "Label11", "F", {3360, 7920, 255, 255}, standard},

    {&C::Label12,
     "Label12",
     "Red",
     {3840, 7560, 495, 255},
     {.text = red, .font = {.points = 12, .bold = true}}},
    {&C::Label13,
     "Label13",
     "Green",
     {3600, 7920, 855, 255},
     {.text = green, .font = {.points = 12, .bold = true}}},
    {&C::Label14,
     "Label14",
     "Blue",
     {3840, 8280, 615, 255},
     {.text = blue, .font = {.points = 12, .bold = true}}},
    {&C::Label15, "Label15", "", {10080, 7560, 375, 255}, standard},
    {&C::Label16, "Label16", "", {10080, 7920, 375, 255}, standard},
    {&C::Label17, "Label17", "", {10080, 8280, 375, 255}, standard},
};

inline constexpr Row<ContinuationArrow> arrows[]{
    {&C::Label22, "Label22", "Continues in the row below", {12240, 1920, 255, 495}, standard},
    {&C::Label23, "Label23", "Continues in the row below", {12240, 2400, 255, 495}, standard},
    {&C::Label24, "Label24", "Continues in the row below", {12240, 2880, 255, 495}, standard},
    {&C::Label25, "Label25", "Continues in the row below", {12240, 4320, 255, 495}, standard},
    {&C::Label26, "Label26", "Continues in the row below", {12240, 4800, 255, 495}, standard},
};

inline constexpr Row<Line> lines[]{
    {&C::Line1, "Line1", "", {0, 7080, 13440, 15}, standard},
    {&C::Line2, "Line2", "", {0, 8640, 14400, 15}, standard},
};

inline constexpr Row<Button> buttons[]{
    {&C::thermal_butt, "thermal_butt", "Thermal", {120, 1440, 1455, 495}, window_button},
    {&C::Sea_butt, "Sea_butt", "Sea Surface", {120, 3960, 1935, 495}, window_button},
    {&C::hvc_butt, "hvc_butt", "HVC", {240, 6000, 1935, 375}, window_button},
    {&C::thermal_command,
     "thermal_command",
     "Generate Thermal Palette",
     {4920, 1680, 2055, 375},
     standard},
    {&C::sea_command,
     "sea_command",
     "Generate Sea Surface Palette",
     {4800, 4080, 2655, 375},
     standard},
    {&C::hvc_command, "hvc_command", "Generate HVC Palette", {6840, 5880, 2055, 375}, standard},
    {&C::hvc_help,
     "hvc_help",
     "Click here for more info",
     {4200, 5880, 2295, 375},
     {.ground = yellow}},
    {&C::Command1, "Command1", "Reset", {1200, 8280, 1335, 375}, {.font = {.points = 12}}},
    {&C::pickcolor,
     "pickcolor",
     "Advanced Color Picker",
     {10440, 7680, 1095, 735},
     {.ground = yellow}},
    {&C::Command2,
     "Command2",
     "Apply Color",
     {13200, 7800, 1095, 495},
     {.font = {.family = FontFamily::narrow, .points = 9.75, .bold = true}}},
    {&C::Command3, "Command3", "About", {120, 8760, 1575, 495}, window_button},
    {&C::Command4, "Command4", "How to Use", {2280, 8760, 1695, 495}, window_button},
    {&C::Command5, "Command5", "Load From File", {4440, 8760, 2295, 495}, window_button},
    {&C::Command6, "Command6", "Quit", {12120, 8760, 1455, 495}, window_button},
};

inline constexpr Row<RangeBox> celsius_boxes[]{
    {&C::Text1, "Text1", "Start, degrees Celsius", {480, 7560, 855, 285}, standard},
    {&C::Text2, "Text2", "End, degrees Celsius", {2280, 7560, 855, 285}, standard},
};

inline constexpr Row<QLineEdit> fahrenheit_boxes[]{
    {&C::Text3, "Text3", "Start, degrees Fahrenheit", {480, 7920, 855, 285}, standard},
    {&C::Text4, "Text4", "End, degrees Fahrenheit", {2280, 7920, 855, 285}, standard},
};

inline constexpr Row<NumberBar> bars[]{
    {&C::HScroll1, "HScroll1", "Red", {4440, 7560, 5535, 255}, standard},
    {&C::HScroll2, "HScroll2", "Green", {4440, 7920, 5535, 255}, standard},
    {&C::HScroll3, "HScroll3", "Blue", {4440, 8280, 5535, 255}, standard},
    {&C::HScroll4, "HScroll4", "HVC brightness", {9840, 6000, 1695, 255}, standard},
};

inline constexpr Row<Swatch> swatches[]{
    {&C::sample, "sample", "Current colour", {11640, 7560, 1575, 975}, standard},
};

inline constexpr Row<PictureBox> picture_boxes[]{
    {&C::Picture1, "Picture1", "HVC palette preview", {12600, 2400, 1575, 3975}, standard},
};

// Each presses those of its buttons that are enabled.
struct KeyRow {
    QKeyCombination keys;
    std::array<Member<Button>, 3> buttons;
};

inline constexpr KeyRow keys[]{
    {Qt::Key_F1, {&C::Command4}},
    {Qt::CTRL | Qt::Key_O, {&C::Command5}},
    {Qt::CTRL | Qt::Key_S, {&C::thermal_command, &C::sea_command, &C::hvc_command}},
    {Qt::CTRL | Qt::Key_Return, {&C::Command2}},
    {Qt::CTRL | Qt::Key_Enter, {&C::Command2}},
    {Qt::CTRL | Qt::Key_1, {&C::thermal_butt}},
    {Qt::CTRL | Qt::Key_2, {&C::Sea_butt}},
    {Qt::CTRL | Qt::Key_3, {&C::hvc_butt}},
};

struct ScaleRow {
    Member<CellArray> control;
    const char* name;
    const char* spoken;
    int top; // of the first row, in twips
};

inline constexpr ScaleRow scales[]{
    {&C::thermal_char, "thermal_char", "Thermal scale", 2040},
    {&C::Label2, "Label2", "Sea Surface scale", 4440},
    {&C::Label3, "Label3", "HVC scale", 6360},
};

inline constexpr TwipRect thermal_ticks[]{
    {120, 2280, 1695, 255},  {2520, 2280, 1695, 255}, {4920, 2280, 1695, 255},
    {7320, 2280, 1695, 255}, {9720, 2280, 1695, 255}, {120, 2760, 1695, 255},
    {2520, 2760, 1695, 255}, {4920, 2760, 1695, 255}, {7320, 2760, 1695, 255},
    {9720, 2760, 1695, 255}, {120, 3240, 1695, 255},  {2520, 3240, 1695, 255},
    {4920, 3240, 1695, 255}, {7320, 3240, 1695, 255}, {9720, 3240, 1695, 255},
    {120, 3720, 1695, 255},  {2400, 3720, 1695, 255},
};

inline constexpr TwipRect sea_ticks[]{
    {120, 4680, 1935, 255},  {2400, 4680, 1935, 255}, {4800, 4680, 1935, 255},
    {7440, 4680, 1935, 255}, {9840, 4680, 1935, 255}, {120, 5160, 1935, 255},
    {2400, 5160, 1935, 255}, {4800, 5160, 1935, 255}, {7440, 5160, 1935, 255},
    {9840, 5160, 1935, 255}, {120, 5640, 1935, 255},  {2400, 5640, 1935, 255},
    {4800, 5640, 975, 255},  {6000, 5640, 1215, 255},
};

inline constexpr TwipRect hvc_ticks[]{
    {120, 6600, 1455, 255},  {2400, 6600, 1455, 255}, {4800, 6600, 1455, 255},
    {7320, 6600, 1455, 255}, {9840, 6600, 1455, 255}, {12000, 6600, 1455, 255},
};

// Eight groups of six, on the screen each from light to dark.
inline constexpr std::array<Colour, 48> preset_colours{
    RGB(255, 255, 255), RGB(224, 224, 224), RGB(192, 192, 192), RGB(128, 128, 128),
    RGB(64, 64, 64),    RGB(0, 0, 0),       RGB(255, 192, 192), RGB(255, 128, 128),
    RGB(192, 0, 0),     RGB(255, 0, 0),     RGB(128, 0, 0),     RGB(64, 0, 0),
    RGB(255, 224, 192), RGB(255, 192, 128), RGB(255, 128, 0),   RGB(192, 64, 0),
    RGB(128, 64, 64),   RGB(128, 64, 0),    RGB(255, 255, 192), RGB(255, 255, 128),
    RGB(255, 255, 0),   RGB(192, 192, 0),   RGB(128, 128, 0),   RGB(64, 64, 0),
    RGB(128, 255, 128), RGB(192, 255, 192), RGB(0, 255, 0),     RGB(0, 192, 0),
    RGB(0, 128, 0),     RGB(0, 64, 0),      RGB(192, 255, 255), RGB(128, 255, 255),
    RGB(0, 192, 192),   RGB(0, 255, 255),   RGB(0, 128, 128),   RGB(0, 64, 64),
    RGB(192, 192, 255), RGB(128, 128, 255), RGB(0, 0, 255),     RGB(0, 0, 192),
    RGB(0, 0, 64),      RGB(0, 0, 128),     RGB(255, 192, 255), RGB(255, 128, 255),
    RGB(255, 0, 255),   RGB(192, 0, 192),   RGB(128, 0, 128),   RGB(64, 0, 64),
};

// Five pairs of neighbours stand swapped, each at the start of an eight.
inline constexpr int preset_slot(int index) {
    if (index < 8 || index % 8 > 1)
        return index;
    return index % 8 == 0 ? index + 1 : index - 1;
}

} // namespace cirrava::tables
