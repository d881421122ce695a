#include "scale_editor/working_scale.h"

#include "scale_editor/qt_values.h"

#include <algorithm>

namespace cirrava {

namespace {

// `choose` is green and `generate` enabled while theirs is the working scale.
void show(bool working, Button& choose, Button& generate) {
    choose.set_face(working ? QColor(0, 255, 0) : QColor());
    generate.setEnabled(working);
}

} // namespace

void WorkingScale::set(ScaleKind kind) {
    ScaleControls& c = controls_;
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
