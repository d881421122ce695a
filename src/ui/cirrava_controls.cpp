#include "ui/cirrava_controls.h"

#include "scale_editor/qt_values.h"
#include "widgets/spoken_colour.h"
#include "widgets/sunken_border.h"

#include <algorithm>

namespace cirrava {

namespace {

constexpr QRgb blue = qRgb(0, 0, 255);
constexpr FontLook bold_12{.points = 12, .bold = true};

constexpr Look title{.text = blue, .font = {FontFamily::narrow, 20.25, true}};
constexpr Look black{.ground = qRgb(0, 0, 0)};
constexpr Look version{.text = blue};
constexpr Look cyan{.ground = qRgb(192, 255, 255)};
constexpr Look green{.ground = qRgb(0, 255, 0)};
constexpr Look yellow{.ground = qRgb(255, 255, 0)};
constexpr Look size_12{.font = {.points = 12}};
constexpr Look size_13{.font = {.points = 13.5}};
constexpr Look heading{.font = bold_12};
constexpr Look in_red{.text = qRgb(255, 0, 0), .font = bold_12};
constexpr Look in_green{.text = qRgb(0, 255, 0), .font = bold_12};
constexpr Look in_blue{.text = blue, .font = bold_12};
constexpr Look narrow_bold{.font = {FontFamily::narrow, 9.75, true}};

// Red, green and blue in two digits each. Five pairs stand swapped; so each line goes from light to
// dark on the screen, but for the last two browns.
constexpr std::array<QRgb, 48> preset_colours{
    0xFFFFFF, 0xE0E0E0, 0xC0C0C0, 0x808080, 0x404040, 0x000000, // greys
    0xFFC0C0, 0xFF8080, 0xC00000, 0xFF0000, 0x800000, 0x400000, // reds
    0xFFE0C0, 0xFFC080, 0xFF8000, 0xC04000, 0x804040, 0x804000, // oranges and browns
    0xFFFFC0, 0xFFFF80, 0xFFFF00, 0xC0C000, 0x808000, 0x404000, // yellows
    0x80FF80, 0xC0FFC0, 0x00FF00, 0x00C000, 0x008000, 0x004000, // greens
    0xC0FFFF, 0x80FFFF, 0x00C0C0, 0x00FFFF, 0x008080, 0x004040, // cyans
    0xC0C0FF, 0x8080FF, 0x0000FF, 0x0000C0, 0x000040, 0x000080, // blues
    0xFFC0FF, 0xFF80FF, 0xFF00FF, 0xC000C0, 0x800080, 0x400040, // magentas
};

// The name of a member of a control array.
QString member(const QString& array, std::size_t index) {
    return QString("%1(%2)").arg(array).arg(index);
}

} // namespace

// The places are as users know them; some temperatures stand a cell left or right of their own.
//
// Each line has a control's name, its caption (or what screen readers say of one without), its
// left, top, width and height in twips, and its look. Where two controls overlap, the later one
// lies on top: cells above temperatures and arrows, buttons above cells.
CirravaControls::CirravaControls(QWidget& window) : Placer(window, "Cirrava PAL", {14415, 9405}) {
    // Title and decoration
    label(Label1, "Label1", "Cirrava PAL", {6720, 480, 2295, 495}, title);
    label(Label32, "Label32", "Version " CIRRAVA_SHORT_VERSION, {8160, 1080, 975, 255}, version);
    control(Image1, "Image1", "A satellite above the earth", {5640, 0, 1080, 1440});
    control(Line1, "Line1", "", {0, 7080, 13440, 15});
    control(Line2, "Line2", "", {0, 8640, 14400, 15});
    give_look(Line1, black);
    give_look(Line2, black);

    // Thermal
    label(Label18, "Label18", "-110C to 49.5C in 0.5C Intervals ", {1680, 1680, 2415, 255}, cyan);
    ticks(T1C, "T1C", 0, ScaleKind::thermal, 2280, 1695, {120, 2520, 4920, 7320, 9720});
    ticks(T1C, "T1C", 5, ScaleKind::thermal, 2760, 1695, {120, 2520, 4920, 7320, 9720});
    ticks(T1C, "T1C", 10, ScaleKind::thermal, 3240, 1695, {120, 2520, 4920, 7320, 9720});
    ticks(T1C, "T1C", 15, ScaleKind::thermal, 3720, 1695, {120, 2400});
    control(Label22, "Label22", "Continues in the row below", {12240, 1920, 255, 495});
    control(Label23, "Label23", "Continues in the row below", {12240, 2400, 255, 495});
    control(Label24, "Label24", "Continues in the row below", {12240, 2880, 255, 495});
    cells(thermal_char, "thermal_char", "Thermal scale", 120, 2040);
    button(thermal_butt, "thermal_butt", "Thermal", {120, 1440, 1455, 495}, size_13);
    button(thermal_command, "thermal_command", "Generate Thermal Palette", {4920, 1680, 2055, 375});

    // Sea Surface
    label(Label19, "Label19", "-10 to 39.8 in 0.2C Intervals", {2160, 4080, 2415, 255}, cyan);
    ticks(SS, "SS", 0, ScaleKind::sea, 4680, 1935, {120, 2400, 4800, 7440, 9840});
    ticks(SS, "SS", 5, ScaleKind::sea, 5160, 1935, {120, 2400, 4800, 7440, 9840});
    ticks(SS, "SS", 10, ScaleKind::sea, 5640, 1935, {120, 2400});
    ticks(SS, "SS", 12, ScaleKind::sea, 5640, 975, {4800});
    ticks(SS, "SS", 13, ScaleKind::sea, 5640, 1215, {6000});
    control(Label25, "Label25", "Continues in the row below", {12240, 4320, 255, 495});
    control(Label26, "Label26", "Continues in the row below", {12240, 4800, 255, 495});
    cells(Label2, "Label2", "Sea Surface scale", 120, 4440);
    button(Sea_butt, "Sea_butt", "Sea Surface", {120, 3960, 1935, 495}, size_13);
    button(sea_command, "sea_command", "Generate Sea Surface Palette", {4800, 4080, 2655, 375});

    // HVC: cells, brightness, preview
    label(Label20, "Label20", "-60 to 39 in 1C intervals", {2280, 6000, 1815, 255}, cyan);
    ticks(hvc, "hvc", 0, ScaleKind::hvc, 6600, 1455, {120, 2400, 4800, 7320, 9840, 12000});
    cells(Label3, "Label3", "HVC scale", 120, 6360);
    button(hvc_butt, "hvc_butt", "HVC", {240, 6000, 1935, 375}, size_13);
    button(hvc_command, "hvc_command", "Generate HVC Palette", {6840, 5880, 2055, 375});
    button(hvc_help, "hvc_help", "Click here for more info", {4200, 5880, 2295, 375}, yellow);
    label(Label30, "Label30", "HVC Brightness", {10080, 5760, 1215, 255});
    label(Label31, "Label31", "Darker", {9240, 6000, 495, 255});
    control(HScroll4, "HScroll4", "HVC brightness", {9840, 6000, 1695, 255});
    label(Label33, "Label33", "Lighter", {11760, 6000, 615, 255});
    label(Label21, "Label21", "HVC Palette ", {12840, 1560, 1335, 615}, heading);
    control(Picture1, "Picture1", "HVC palette preview", {12600, 2400, 1575, 3975});

    // The range
    label(Label4, "Label4", "Now Working", {0, 7200, 1095, 255});
    label(Label5, "Label5", "", {1080, 7200, 855, 255}, green);
    label(Label6, "Label6", "Start", {0, 7560, 375, 255});
    box(Text1, "Text1", "Start, degrees Celsius", {480, 7560, 855, 285});
    label(Label8, "Label8", "C", {1560, 7560, 255, 255});
    label(Label7, "Label7", "End", {1800, 7560, 495, 255});
    box(Text2, "Text2", "End, degrees Celsius", {2280, 7560, 855, 285});
    label(Label9, "Label9", "C", {3360, 7560, 255, 255});
    box(Text3, "Text3", "Start, degrees Fahrenheit", {480, 7920, 855, 285});
    label(Label10, "Label10", "F", {1560, 7920, 255, 255});
    box(Text4, "Text4", "End, degrees Fahrenheit", {2280, 7920, 855, 285});
    label(Label11, "Label11", "F", {3360, 7920, 255, 255});
    button(Command1, "Command1", "Reset", {1200, 8280, 1335, 375}, size_12);

    // Colours
    label(Label12, "Label12", "Red", {3840, 7560, 495, 255}, in_red);
    label(Label13, "Label13", "Green", {3600, 7920, 855, 255}, in_green);
    label(Label14, "Label14", "Blue", {3840, 8280, 615, 255}, in_blue);
    control(HScroll1, "HScroll1", "Red", {4440, 7560, 5535, 255});
    control(HScroll2, "HScroll2", "Green", {4440, 7920, 5535, 255});
    control(HScroll3, "HScroll3", "Blue", {4440, 8280, 5535, 255});
    label(Label15, "Label15", "", {10080, 7560, 375, 255});
    label(Label16, "Label16", "", {10080, 7920, 375, 255});
    label(Label17, "Label17", "", {10080, 8280, 375, 255});
    button(pickcolor, "pickcolor", "Advanced Color Picker", {10440, 7680, 1095, 735}, yellow);
    button(Command2, "Command2", "Apply Color", {13200, 7800, 1095, 495}, narrow_bold);
    control(sample, "sample", "Current colour", {11640, 7560, 1575, 975});
    for (std::size_t i = 0; i < color.size(); ++i) {
        const QRgb colour = preset_colours[i];
        const int slot = static_cast<int>(i >= 8 && i % 8 < 2 ? i ^ 1 : i); // 8 with 9, ...
        button(color[i], member("color", i), "", {2040 + 240 * slot, 7200, 240, 240},
               {.ground = colour});
        color[i].resize(color[i].size() + QSize(1, 1)); // neighbours share an edge at every size
        color[i].setAccessibleName(QString("Preset %1: ").arg(i + 1) + spoken_colour(colour));
        color[i].setToolTip(colour_numbers(colour));
    }

    // Window buttons
    button(Command3, "Command3", "About", {120, 8760, 1575, 495}, size_13);
    button(Command4, "Command4", "How to Use", {2280, 8760, 1695, 495}, size_13);
    button(Command5, "Command5", "Load From File", {4440, 8760, 2295, 495}, size_13);
    button(Command6, "Command6", "Quit", {12120, 8760, 1455, 495}, size_13);

    Image1.show_image(program_picture());
    Image1.set_zoom(shrink());
    give_sunken_border(Picture1);
    Picture1.setFocusPolicy(Qt::TabFocus);
    Picture1.set_zoom(shrink());
    Label1.setIndent(5); // off the picture
    Command2.setToolTip("Click to apply color to range selected");
    thermal_command.setToolTip("Ctrl+S, while Thermal is chosen");
    sea_command.setToolTip("Ctrl+S, while Sea Surface is chosen");
    hvc_command.setToolTip("Ctrl+S, while HVC is chosen");
    Command1.setToolTip("Marks the whole HVC scale for the brightness slider");
    QWidgetList order{&Text1,    &Text2,           &Text3,       &Text4,      &HScroll1, &HScroll2,
                      &HScroll3, &sample,          &Command2,    &Command3,   &Command4, &Command5,
                      &Command6, &thermal_command, &sea_command, &hvc_command};
    for (Button& preset : color)
        order << &preset;
    order << QWidgetList{&pickcolor, &hvc_help,     &Picture1, &HScroll4,
                         &Command1,  &thermal_butt, &Sea_butt, &hvc_butt};
    for (qsizetype i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
    Text1.setFocus();
}

void CirravaControls::ticks(std::span<QLabel> labels, const QString& name, std::size_t i,
                            ScaleKind kind, int top, int width, std::initializer_list<int> lefts) {
    for (const int left : lefts) {
        const int cell = std::min(20 * static_cast<int>(i), cell_count(kind) - 1);
        label(labels[i], member(name, i), to_qt(tick_text(kind, cell)), {left, top, width, 255});
        labels[i].setContentsMargins(0, 2, 0, 0); // off the line under the cells
        ++i;
    }
}

// Screen readers say what it is for, and its text.
void CirravaControls::box(TextBox& box, const QString& name, const QString& spoken,
                          const TwipRect& rect) {
    control(box, name, spoken, rect);
    box.setAccessibleDescription(spoken);
}

void CirravaControls::cells(CellArray& cells, const QString& name, const QString& spoken, int left,
                            int top) {
    control(cells, name, spoken, {});
    cells.lay_out(left, top, dpi());
}

} // namespace cirrava
