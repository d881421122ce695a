#pragma once

#include <QApplication>
#include <QWidget>

namespace cirrava {

// Whether the user can work `control` now: it is enabled, and not behind a modal window. Screen
// readers and other programs get at it even when the user cannot.
inline bool in_reach(const QWidget& control) {
    const auto* const modal = QApplication::activeModalWidget();
    return control.isEnabled() && (modal == nullptr || modal == control.window());
}

} // namespace cirrava
