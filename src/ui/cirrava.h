#pragma once

#include "colour/apply_colour.h"
#include "colour/colour_picker.h"
#include "palette_files/hvc_palette.h"
#include "palette_files/palette_loader.h"
#include "palette_files/scale_writer.h"
#include "ui/cirrava_controls.h"

namespace cirrava {

// The main window. It owns the controls, the editor's state and the controllers, and connects each
// event to the controller that answers it.
class Cirrava : public QWidget {
    Q_OBJECT
public:
    Cirrava() : Cirrava(toolkit_dialogs(*this)) {}
    explicit Cirrava(Dialogs dialogs);

private:
    void load();
    void connect_scales();
    void connect_colour();
    void connect_files();
    void connect_windows();

    Scales scales() { return {controls_.thermal_char, controls_.Label2, controls_.Label3}; }
    RangeSelection::Boxes boxes();
    WorkingScale::Controls working_scale_controls();
    CurrentColour::Controls current_colour_controls();

    CirravaControls controls_;
    EditorState state_;
    QString out_path_;
    Dialogs dialogs_;
    CommonDialog cdlopen_{dialogs_};
    FileDesk file_desk_{cdlopen_, dialogs_, out_path_};

    WorkingScale working_scale_{working_scale_controls()};
    RangeSelection range_selection_{state_, working_scale_, boxes()};
    CurrentColour current_colour_{current_colour_controls()};
    ColourPicker colour_picker_{cdlopen_, dialogs_, current_colour_};
    ApplyColour apply_colour_{
        state_, boxes(), working_scale_, current_colour_, scales(), dialogs_, [this] {
            hvc_palette_.refresh_preview();
        }};
    ScaleWriter scale_writer_{file_desk_};
    HvcPalette hvc_palette_{file_desk_, state_, controls_.Label3, controls_.Picture1,
                            controls_.HScroll4};
    PaletteLoader palette_loader_{file_desk_, scales(), controls_.Picture1};
};

} // namespace cirrava
