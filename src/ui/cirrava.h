#pragma once

#include "colour/current_colour.h"
#include "palette_files/hvc_palette.h"
#include "scale_editor/palette_history.h"
#include "scale_editor/range_selection.h"
#include "ui/cirrava_controls.h"

namespace cirrava {

// The main window. It owns the controls, the editor's state and the controllers, and connects each
// event to what answers it.
class Cirrava : public QWidget {
    Q_OBJECT
public:
    Cirrava() : Cirrava(qt_dialogs(*this)) {}
    explicit Cirrava(Dialogs dialogs);
    void setVisible(bool visible) override;

private:
    void start_up();
    void connect_scales();
    void connect_colour();
    void connect_files();
    void connect_windows();
    void connect_history();
    void connect_keys();
    void copy_colour(RangeEnd end);
    void apply();

    CirravaControls controls_;
    EditorState state_;
    Dialogs dialogs_;
    CommonDialog cdlopen_{dialogs_};

    WorkingScale working_scale_{controls_};
    RangeSelection range_selection_{state_, working_scale_, controls_, controls_};
    CurrentColour current_colour_{controls_};
    HvcPalette hvc_palette_{cdlopen_, dialogs_, state_, controls_, controls_.Picture1};
    PaletteHistory history_{controls_, [this] { hvc_palette_.refresh_preview_silently(); }};
};

} // namespace cirrava
