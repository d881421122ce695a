#include "scale_editor/working_scale.h"

#include "scale_editor/qt_values.h"

namespace cirrava {

namespace {

constexpr Colour green = RGB(0, 255, 0);

void show(const WorkingScale::ScaleButtons& buttons, bool working) {
    buttons.choose.set_face(working ? to_qt(green) : QColor());
    buttons.generate.setEnabled(working);
}

} // namespace

void WorkingScale::set(ScaleKind kind) {
    show(controls_.thermal, kind == ScaleKind::thermal);
    show(controls_.sea, kind == ScaleKind::sea);
    show(controls_.hvc, kind == ScaleKind::hvc);
    controls_.Command1.setEnabled(kind == ScaleKind::hvc);
    controls_.HScroll4.setEnabled(kind == ScaleKind::hvc);
    controls_.Label5.setText(to_qt(kind_text(kind)));
}

std::optional<ScaleKind> WorkingScale::kind() const {
    for (const ScaleKind kind : all_scales)
        if (controls_.Label5.text() == to_qt(kind_text(kind)))
            return kind;
    return std::nullopt;
}

} // namespace cirrava
