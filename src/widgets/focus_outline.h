#pragma once

#include <QMargins>

class QColor;
class QStylePainter;
class QWidget;

namespace cirrava {

// From the edge of a control to its focus outline, in pixels.
inline constexpr QMargins focus_margins{3, 3, 3, 3};

// Shows that `control` has the keyboard, where it has; `ground` is the colour beneath.
void paint_focus_outline(QStylePainter& painter, const QWidget& control, const QColor& ground);

} // namespace cirrava
