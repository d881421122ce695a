#pragma once

#include "widgets/twips.h"

#include <QWidget>

namespace cirrava {

// Puts `control` into `window` under that name. `rect` is in twips.
void place(QWidget& control, QWidget& window, const QString& name, const TwipRect& rect);

// Makes `window` one that cannot be resized, with that title, a close box and no other title-bar
// button, and a client area of that width and height in twips.
void make_fixed_window(QWidget& window, const QString& title, QSize client_area);

// Narrows the font of every caption of `window` until it fits its box, wrapped where the box has
// room for several lines. Fonts differ in width from one machine to the next; boxes do not. After
// the last caption is written.
void fit_captions(const QWidget& window);

} // namespace cirrava
