#include "ui/cirrava.h"

#include "colour/apply_colour.h"
#include "colour/pick_colour.h"
#include "palette_files/load_palette.h"
#include "palette_files/write_scale.h"
#include "scale_editor/qt_values.h"
#include "ui/about_window.h"
#include "ui/cirrava_layout.h"
#include "ui/cirrava_tables.h"
#include "ui/help_windows.h"
#include "ui/placer.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QShortcut>

namespace cirrava {

namespace {

// A window for screen readers, as which Qt does not know a widget that is one.
QAccessibleInterface* accessible_window(const QString&, QObject* object) {
    auto* const window = qobject_cast<Cirrava*>(object);
    return window != nullptr ? new QAccessibleWidget(window, QAccessible::Window) : nullptr;
}

} // namespace

Cirrava::Cirrava(Dialogs dialogs) : dialogs_(std::move(dialogs)) {
    QAccessible::installFactory(accessible_window); // before anything asks for the window's
    lay_out(controls_, *this);
    start_up();
    connect_scales();
    connect_colour();
    connect_files();
    connect_windows();
    connect_history();
    connect_keys();
}

// Fits the captions while the window manager is busy with the window: the first measuring reads the
// fonts, which takes as long.
void Cirrava::setVisible(bool visible) {
    QWidget::setVisible(visible);
    if (visible)
        fit_captions(*this);
}

void Cirrava::start_up() {
    for (const auto& channel : controls_.channels())
        current_colour_.slider_moved(channel);
    working_scale_.set(ScaleKind::thermal);
    cdlopen_.InitDir = QCoreApplication::applicationDirPath();
    cdlopen_.FileName = "*.bmp";
    cdlopen_.Filter = "*.bmp";
}

void Cirrava::connect_scales() {
    auto& c = controls_;
    for (const ScaleKind kind : all_scales) {
        CellArray& cells = c.cells(kind);
        connect(&cells, &CellArray::marked, this,
                [this, kind](int cell, RangeEnd end) { range_selection_.mark(kind, cell, end); });
        connect(&cells, &CellArray::colour_asked, this,
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
            [this](int cells) { range_selection_.step(RangeEnd::start, cells); });
    connect(&c.Text2, &RangeBox::stepped, this,
            [this](int cells) { range_selection_.step(RangeEnd::end, cells); });
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
    connect(&c.Text1, &RangeBox::colour_asked, this, [this] { copy_colour(RangeEnd::start); });
    connect(&c.Text2, &RangeBox::colour_asked, this, [this] { copy_colour(RangeEnd::end); });
    connect(&c.pickcolor, &Button::clicked, this,
            [this] { pick_colour(cdlopen_, dialogs_, current_colour_); });
    connect(&c.Command2, &Button::clicked, this, [this] { apply(); });
}

void Cirrava::connect_files() {
    auto& c = controls_;
    connect(&c.thermal_command, &Button::clicked, this,
            [this] { write_thermal(cdlopen_, dialogs_, controls_.thermal_char); });
    connect(&c.sea_command, &Button::clicked, this,
            [this] { write_sea(cdlopen_, dialogs_, controls_.Label2); });
    connect(&c.hvc_command, &Button::clicked, this, [this] { hvc_palette_.generate(); });
    connect(&c.HScroll4, &NumberBar::valueChanged, this, [this] {
        hvc_palette_.brightness_changed();
        history_.remember();
    });
    connect(&c.Command5, &Button::clicked, this, [this] {
        load_palette(cdlopen_, dialogs_, controls_, controls_.Picture1);
        history_.remember();
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
    for (const auto keys : {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y})
        connect(new QShortcut(keys, this), &QShortcut::activated, this, // desktops differ
                [this] { history_.redo(); });
}

void Cirrava::connect_keys() {
    for (const auto& [keys, buttons] : tables::keys) {
        auto* const shortcut = new QShortcut(keys, this);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, [this, &buttons = buttons] {
            for (const tables::Member<Button> button : buttons)
                if (button != nullptr)
                    (controls_.*button).click(); // a disabled one does nothing
        });
    }
}

void Cirrava::copy_colour(RangeEnd end) {
    if (const auto cell = range_selection_.cell_of(end))
        current_colour_.take(controls_.cells(working_scale_.kind()).colour(*cell));
}

void Cirrava::apply() {
    const auto range = range_selection_.range();
    apply_colour(current_colour_.colour(), range, controls_, dialogs_);
    if (range && range->kind == ScaleKind::hvc)
        hvc_palette_.refresh_preview();
    history_.remember();
}

} // namespace cirrava
