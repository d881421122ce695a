#include "ui/cirrava.h"

#include "scale_editor/tick_labels.h"
#include "ui/about_window.h"
#include "ui/cirrava_layout.h"
#include "ui/help_windows.h"

#include <QCoreApplication>

namespace cirrava {

Cirrava::Cirrava(Dialogs dialogs) : dialogs_(std::move(dialogs)) {
    lay_out(controls_, *this);
    connect_scales();
    connect_colour();
    connect_files();
    connect_windows();
    load();
    fit_captions(*this);
}

void Cirrava::load() {
    write_tick_labels(ScaleKind::thermal, controls_.T1C);
    write_tick_labels(ScaleKind::sea, controls_.SS);
    write_tick_labels(ScaleKind::hvc, controls_.hvc);
    current_colour_.start();
    hvc_palette_.start();
    working_scale_.set(ScaleKind::thermal);
    cdlopen_.InitDir = QCoreApplication::applicationDirPath();
    cdlopen_.FileName = "*.bmp";
    cdlopen_.Filter = "*.bmp";
}

void Cirrava::connect_scales() {
    auto& c = controls_;
    for (const ScaleKind kind : all_scales) {
        connect(&scales()[kind], &CellArray::cell_released, this,
                [this, kind](int cell, Qt::MouseButton button) {
                    range_selection_.cell_released(kind, cell, button);
                });
        connect(&scales()[kind], &CellArray::cell_double_clicked, this,
                [this, kind](int cell) { current_colour_.take(scales()[kind].colour(cell)); });
    }
    connect(&c.thermal_butt, &Button::clicked, this,
            [this] { range_selection_.choose_scale(ScaleKind::thermal); });
    connect(&c.Sea_butt, &Button::clicked, this,
            [this] { range_selection_.choose_scale(ScaleKind::sea); });
    connect(&c.hvc_butt, &Button::clicked, this,
            [this] { range_selection_.choose_scale(ScaleKind::hvc); });
    connect(&c.Text1, &QLineEdit::textChanged, this, [this] { range_selection_.start_changed(); });
    connect(&c.Text2, &QLineEdit::textChanged, this, [this] { range_selection_.end_changed(); });
    connect(&c.Command1, &Button::clicked, this, [this] { range_selection_.reset(); });
}

void Cirrava::connect_colour() {
    auto& c = controls_;
    for (int i = 0; i < static_cast<int>(c.color.size()); ++i)
        connect(&c.color[static_cast<std::size_t>(i)], &Button::clicked, this,
                [this, i] { current_colour_.take(preset_colour(i)); });
    connect(&c.HScroll1, &NumberBar::valueChanged, this, [this] { current_colour_.red_moved(); });
    connect(&c.HScroll2, &NumberBar::valueChanged, this, [this] { current_colour_.green_moved(); });
    connect(&c.HScroll3, &NumberBar::valueChanged, this, [this] { current_colour_.blue_moved(); });
    connect(&c.pickcolor, &Button::clicked, this, [this] { colour_picker_.pick(); });
    connect(&c.Command2, &Button::clicked, this, [this] { apply_colour_.apply(); });
}

void Cirrava::connect_files() {
    auto& c = controls_;
    connect(&c.thermal_command, &Button::clicked, this,
            [this] { scale_writer_.write_thermal(controls_.thermal_char); });
    connect(&c.sea_command, &Button::clicked, this,
            [this] { scale_writer_.write_sea(controls_.Label2); });
    connect(&c.hvc_command, &Button::clicked, this, [this] { hvc_palette_.generate(); });
    connect(&c.HScroll4, &NumberBar::valueChanged, this,
            [this] { hvc_palette_.brightness_changed(); });
    connect(&c.Command5, &Button::clicked, this, [this] { palette_loader_.load(); });
}

void Cirrava::connect_windows() {
    auto& c = controls_;
    connect(&c.Command3, &Button::clicked, this, [this] { show_frmAbout(*this); });
    connect(&c.Command4, &Button::clicked, this, [this] { show_palhelp(*this); });
    connect(&c.hvc_help, &Button::clicked, this, [this] { show_hvchelp(*this); });
    connect(&c.Command6, &Button::clicked, this, [] { QCoreApplication::exit(0); });
}

RangeSelection::Boxes Cirrava::boxes() {
    return {controls_.Text1, controls_.Text2, controls_.Text3, controls_.Text4};
}

WorkingScale::Controls Cirrava::working_scale_controls() {
    auto& c = controls_;
    return {.Label5 = c.Label5,
            .thermal = {c.thermal_butt, c.thermal_command},
            .sea = {c.Sea_butt, c.sea_command},
            .hvc = {c.hvc_butt, c.hvc_command},
            .Command1 = c.Command1,
            .HScroll4 = c.HScroll4};
}

CurrentColour::Controls Cirrava::current_colour_controls() {
    auto& c = controls_;
    return {c.sample, c.HScroll1, c.HScroll2, c.HScroll3, c.Label15, c.Label16, c.Label17};
}

} // namespace cirrava
