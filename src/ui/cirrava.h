#pragma once

#include "colour/current_colour.h"
#include "palette_files/hvc_palette.h"
#include "palette_files/load_palette.h"
#include "scale_editor/palette_history.h"
#include "scale_editor/selection.h"
#include "ui/cirrava_controls.h"
#include "widgets/common_dialog.h"
#include "widgets/dialogs.h"
#include "widgets/spoken.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace cirrava {

// The main window. It owns the controls and the controllers and connects each event to what answers
// it.
class Cirrava : public QWidget, public Spoken {
public:
    Cirrava() : Cirrava(qt_dialogs(*this, shipped_palettes())) {}
    explicit Cirrava(Dialogs dialogs);

    // A QMainWindow would be known as a window by itself, but take a third of a MiB more.
    QAccessibleInterface* new_accessible() override {
        return new QAccessibleWidget(this, QAccessible::Window);
    }

private:
    template <class Action> void on_click(Button& button, Action action) {
        connect(&button, &Button::clicked, this, action);
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
