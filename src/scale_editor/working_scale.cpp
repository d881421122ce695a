#include "scale_editor/working_scale.h"

#include "scale_editor/qt_values.h"

#include <algorithm>

namespace cirrava {

namespace {

// `choose` is green and `generate` enabled while theirs is the working scale.
void show(bool working, Button& choose, Button& generate) {
    choose.set_face(working ? QColor(0, 255, 0) : QColor());
    choose.setAccessibleDescription(working ? QString("working scale") : QString());
    generate.setEnabled(working);
}

// From the button that generates one scale's file to that of another: disabled, it would hand the
// focus to some other control.
void move_focus(ScaleControls& c, ScaleKind kind) {
    if (!c.thermal_command.hasFocus() && !c.sea_command.hasFocus() && !c.hvc_command.hasFocus())
        return;
    Button& generate = kind == ScaleKind::thermal ? c.thermal_command
                       : kind == ScaleKind::sea   ? c.sea_command
                                                  : c.hvc_command;
    generate.setEnabled(true);
    generate.setFocus();
}

} // namespace

void WorkingScale::set(ScaleKind kind) {
    ScaleControls& c = controls_;
    move_focus(c, kind);
    show(kind == ScaleKind::thermal, c.thermal_butt, c.thermal_command);
    show(kind == ScaleKind::sea, c.Sea_butt, c.sea_command);
    show(kind == ScaleKind::hvc, c.hvc_butt, c.hvc_command);
    c.Command1.setEnabled(kind == ScaleKind::hvc);
    c.HScroll4.setEnabled(kind == ScaleKind::hvc);
    c.Label5.setText(to_qt(kind_text(kind)));
}

ScaleKind WorkingScale::kind() const {
    const auto is_shown = [this](ScaleKind kind) {
        return controls_.Label5.text() == to_qt(kind_text(kind));
    };
    const auto* const shown = std::ranges::find_if(all_scales, is_shown);
    Q_ASSERT(shown != all_scales.end());
    return *shown;
}

} // namespace cirrava
