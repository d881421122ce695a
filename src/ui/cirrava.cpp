#include "ui/cirrava.h"

#include "colour/pick_colour.h"
#include "palette_files/palette_image.h"
#include "palette_files/save_palette.h"
#include "scale_editor/qt_values.h"
#include "ui/about_window.h"
#include "ui/help_windows.h"
#include "ui/placer.h"

#include <QCoreApplication>
#include <QShortcut>
#include <utility>

namespace cirrava {

Cirrava::Cirrava(Dialogs dialogs) : cdlopen_(std::move(dialogs)) {
    setObjectName("Cirrava");
    setWindowIcon(program_icon());
    cdlopen_.InitDir = QCoreApplication::applicationDirPath();
    cdlopen_.Filter = "*.bmp";

    connect_scales();
    connect_colour();
    connect_files();
    connect_windows();
    connect_keys();
    fit_captions(*this);
}

void Cirrava::connect_scales() {
    auto& c = controls_;
    for (const ScaleControls& scale : c.scales) {
        on_click(scale.choose, [this, &scale] { selection_.choose(scale); });
        connect(&scale.cells, &CellArray::marked, this,
                [this, &scale](int cell, Side side) { selection_.mark(scale, cell, side); });
        connect(&scale.cells, &CellArray::colour_asked, this,
                [this, &scale](int cell) { current_colour_.take(scale.cells.colour(cell)); });
        for (const ScaleControls& other : c.scales) // over which the pointer may be by then
            connect(&scale.cells, &CellArray::released, &other.cells, &CellArray::mark_at);
    }
    connect_box(c.Text1, Side::start);
    connect_box(c.Text2, Side::end);
    on_click(c.Command1, [this] { selection_.reset(); });
}

void Cirrava::connect_box(RangeBox& box, Side side) {
    connect(&box, &RangeBox::stepped, this,
            [this, side](int cells) { selection_.step(side, cells); });
    connect(&box, &RangeBox::sent_to_limit, this,
            [this, side](bool warmest) { selection_.send_to_limit(side, warmest); });
    connect(&box, &RangeBox::colour_asked, this, [this, side] {
        if (const auto cell = selection_.cell_of(side))
            current_colour_.take(selection_.working_scale().cells.colour(*cell));
    });
}

void Cirrava::connect_colour() {
    auto& c = controls_;
    for (const auto& [slider, readout] : c.channels)
        connect(&slider, &Slider::valueChanged, this, [this] { current_colour_.follow_sliders(); });
    for (Button& preset : c.color)
        on_click(preset, [this, &preset] { current_colour_.take(from_qt(preset.face())); });
    on_click(c.pickcolor, [this] { pick_colour(cdlopen_, current_colour_); });
    on_click(c.Command2, [this] { apply(); });
}

void Cirrava::connect_files() {
    auto& c = controls_;
    on_click(c.thermal_command, [this, &c] {
        save_palette(cdlopen_, row_image(c.thermal_char.colours()),
                     {"thermal.bmp", "Create Thermal", "Error# "});
    });
    on_click(c.sea_command, [this, &c] {
        save_palette(cdlopen_, row_image(c.Label2.colours()),
                     {"sea.bmp", "Create Sea Surface Palette", "Error # "});
    });
    on_click(c.hvc_command, [this] { hvc_palette_.generate(); });
    connect(&c.HScroll4, &Slider::valueChanged, this,
            [this] { hvc_palette_.brightness_changed(); });
    on_click(c.Command5, [this, &c] { load_palette(cdlopen_, c.scales, c.Picture1); });
}

void Cirrava::connect_windows() {
    auto& c = controls_;
    on_click(c.Command3, [this] { show_frmAbout(*this); });
    on_click(c.Command4, [this] { show_palhelp(*this); });
    on_click(c.hvc_help, [this] { show_hvchelp(*this); });
    on_click(c.Command6, [] { QCoreApplication::exit(0); });
}

void Cirrava::connect_keys() {
    auto& c = controls_;
    const auto press = [this](QKeyCombination keys, const QList<Button*>& buttons) {
        auto* const shortcut = new QShortcut(keys, this); // the window owns it
        shortcut->setAutoRepeat(false);
        for (Button* button : buttons) { // a disabled one does nothing
            connect(shortcut, &QShortcut::activated, button, &Button::click);
            if (button->toolTip().isEmpty())
                button->setToolTip(QKeySequence(keys).toString(QKeySequence::NativeText));
        }
    };
    press(Qt::Key_F1, {&c.Command4});
    press(Qt::Key_F2, {&c.thermal_butt});
    press(Qt::Key_F3, {&c.Sea_butt});
    press(Qt::Key_F4, {&c.hvc_butt});
    press(Qt::CTRL | Qt::Key_O, {&c.Command5});
    press(Qt::CTRL | Qt::Key_S, {&c.thermal_command, &c.sea_command, &c.hvc_command});
    press(Qt::CTRL | Qt::Key_Return, {&c.Command2});
    press(Qt::CTRL | Qt::Key_Enter, {&c.Command2});
    new QShortcut(QKeySequence::Undo, this, [this] { history_.undo(); });
    // Desktops differ in the key for redo.
    for (const auto keys : {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y})
        new QShortcut(keys, this, [this] { history_.redo(); });
}

void Cirrava::apply() {
    const auto range = selection_.range();
    if (!range)
        return cdlopen_.tell(
            "Choose a range by left clicking for start and right clicking for end");
    const ScaleControls& scale = selection_.working_scale();
    scale.cells.fill(*range, current_colour_.colour());
    if (scale.kind() == ScaleKind::hvc)
        hvc_palette_.refresh_preview();
}

} // namespace cirrava
