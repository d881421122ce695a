#pragma once

#include "colour/current_colour.h"
#include "palette_files/hvc_palette.h"
#include "scale_editor/palette_history.h"
#include "scale_editor/selection.h"
#include "ui/cirrava_controls.h"
#include "widgets/common_dialog.h"
#include "widgets/dialogs.h"

#include <QApplication>
#include <QWidget>

namespace cirrava {

// The main window. It owns the controls and the controllers and connects each event to what answers
// it.
class Cirrava : public QWidget {
public:
    Cirrava() : Cirrava(qt_dialogs(*this)) {}
    explicit Cirrava(Dialogs dialogs);

private:
    // Connects what the user does with a control to what answers it. A control that is disabled or
    // behind a modal window is out of the user's reach, but not of other programs': nothing
    // answers.
    template <class Control, class Signal, class Action>
    void on(Control& control, Signal signal, Action action) {
        connect(&control, signal, this, [this, &control, action](auto... values) {
            if (control.isEnabled() && QApplication::activeModalWidget() == nullptr)
                return action(values...);
            // Sliders alone hold what was done to them.
            current_colour_.take(current_colour_.colour());
            controls_.HScroll4.setValue(HvcPalette::slider_rest);
        });
    }
    template <class Action> void on_click(Button& button, Action action) {
        on(button, &Button::clicked, [action](bool) { action(); });
    }
    void connect_scales();
    void connect_box(RangeBox& box, Side side);
    void connect_colour();
    void connect_files();
    void connect_windows();
    void connect_keys();
    void apply();

    CirravaControls controls_{*this};
    CommonDialog cdlopen_;

    Selection selection_{controls_.scales,
                         controls_.Label5,
                         {controls_.Text1, controls_.Text3},
                         {controls_.Text2, controls_.Text4}};
    CurrentColour current_colour_{controls_.sample, controls_.channels};
    HvcPalette hvc_palette_{cdlopen_, selection_, controls_.Label3, controls_.HScroll4,
                            controls_.Picture1};
    PaletteHistory history_{controls_.scales, [this] { hvc_palette_.refresh_preview_silently(); }};
};

} // namespace cirrava
