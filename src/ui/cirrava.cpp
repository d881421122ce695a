#include "ui/cirrava.h"

#include "colour/apply_colour.h"
#include "colour/pick_colour.h"
#include "palette_files/load_palette.h"
#include "palette_files/write_scale.h"
#include "scale_editor/qt_values.h"
#include "scale_editor/tick_labels.h"
#include "ui/about_window.h"
#include "ui/cirrava_layout.h"
#include "ui/help_windows.h"
#include "ui/placing.h"

#include <QCoreApplication>
#include <QShortcut>

namespace cirrava {

Cirrava::Cirrava(Dialogs dialogs) : desk_{.dialogs = std::move(dialogs)} {
    lay_out(controls_, *this);
    load();
    fit_captions(*this);
    connect_scales();
    connect_colour();
    connect_files();
    connect_windows();
    connect_history();
}

void Cirrava::load() {
    write_tick_labels(ScaleKind::thermal, controls_.T1C);
    write_tick_labels(ScaleKind::sea, controls_.SS);
    write_tick_labels(ScaleKind::hvc, controls_.hvc);
    for (const auto& channel : controls_.channels())
        current_colour_.slider_moved(channel);
    working_scale_.set(ScaleKind::thermal);
    desk_.cdlopen.InitDir = QCoreApplication::applicationDirPath();
    desk_.cdlopen.FileName = "*.bmp";
    desk_.cdlopen.Filter = "*.bmp";
}

void Cirrava::connect_scales() {
    auto& c = controls_;
    for (const ScaleKind kind : all_scales) {
        CellArray& cells = c.cells(kind);
        connect(&cells, &CellArray::cell_released, this,
                [this, kind](int cell, Qt::MouseButton button) {
                    range_selection_.cell_released(kind, cell, button);
                });
        connect(&cells, &CellArray::cell_double_clicked, this,
                [this, &cells](int cell) { current_colour_.take(cells.colour(cell)); });
    }
    connect(&c.thermal_butt, &Button::clicked, this,
            [this] { range_selection_.choose_scale(ScaleKind::thermal); });
    connect(&c.Sea_butt, &Button::clicked, this,
            [this] { range_selection_.choose_scale(ScaleKind::sea); });
    connect(&c.hvc_butt, &Button::clicked, this,
            [this] { range_selection_.choose_scale(ScaleKind::hvc); });
    connect(&c.Text1, &QLineEdit::textChanged, this, [&c] { show_fahrenheit(c.Text1, c.Text3); });
    connect(&c.Text2, &QLineEdit::textChanged, this, [&c] { show_fahrenheit(c.Text2, c.Text4); });
    connect(&c.Text1, &RangeBox::stepped, this,
            [this](int cells) { range_selection_.step_start(cells); });
    connect(&c.Text2, &RangeBox::stepped, this,
            [this](int cells) { range_selection_.step_end(cells); });
    connect(&c.Command1, &Button::clicked, this, [this] { range_selection_.reset(); });
}

void Cirrava::connect_colour() {
    auto& c = controls_;
    for (Button& preset : c.color)
        connect(&preset, &Button::clicked, this,
                [this, &preset] { current_colour_.take(from_qt(preset.face())); });
    for (const auto& channel : c.channels())
        connect(&channel.slider, &NumberBar::valueChanged, this,
                [this, channel] { current_colour_.slider_moved(channel); });
    for (RangeBox* box : {&c.Text1, &c.Text2})
        connect(box, &RangeBox::colour_asked, this, [this, box] { copy_colour(*box); });
    connect(&c.pickcolor, &Button::clicked, this,
            [this] { pick_colour(desk_.cdlopen, desk_.dialogs, current_colour_); });
    connect(&c.Command2, &Button::clicked, this, [this] { history_.record([this] { apply(); }); });
}

void Cirrava::connect_files() {
    auto& c = controls_;
    connect(&c.thermal_command, &Button::clicked, this,
            [this] { write_thermal(desk_, controls_.thermal_char); });
    connect(&c.sea_command, &Button::clicked, this, [this] { write_sea(desk_, controls_.Label2); });
    connect(&c.hvc_command, &Button::clicked, this, [this] { hvc_palette_.generate(); });
    connect(&c.HScroll4, &NumberBar::valueChanged, this,
            [this] { history_.record([this] { hvc_palette_.brightness_changed(); }); });
    connect(&c.Command5, &Button::clicked, this, [this] {
        history_.record([this] { load_palette(desk_, controls_, controls_.Picture1); });
    });
}

void Cirrava::connect_windows() {
    auto& c = controls_;
    connect(&c.Command3, &Button::clicked, this, [this] { show_frmAbout(*this); });
    connect(&c.Command4, &Button::clicked, this, [this] { show_palhelp(*this); });
    connect(&c.hvc_help, &Button::clicked, this, [this] { show_hvchelp(*this); });
    connect(&c.Command6, &Button::clicked, this, [] { QCoreApplication::exit(0); });
}

void Cirrava::connect_history() {
    connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, this,
            [this] { history_.undo(); });
    for (const char* keys : {"Ctrl+Shift+Z", "Ctrl+Y"}) // desktops differ: both bring back
        connect(new QShortcut(QKeySequence(keys), this), &QShortcut::activated, this,
                [this] { history_.redo(); });
}

void Cirrava::copy_colour(const QLineEdit& box) {
    const auto kind = working_scale_.kind();
    const auto cell = range_selection_.cell_of(box);
    if (kind && cell)
        current_colour_.take(controls_.cells(*kind).colour(*cell));
}

void Cirrava::apply() {
    const auto changed = apply_colour(current_colour_.colour(), range_selection_, state_,
                                      working_scale_, controls_, desk_.dialogs);
    if (changed == ScaleKind::hvc)
        hvc_palette_.refresh_preview();
}

} // namespace cirrava
