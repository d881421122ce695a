#pragma once

#include "platform/twips.h"

#include <QWidget>

namespace cirrava {

// Puts `control` into `window` under that name. `place` is in twips.
void place(QWidget& control, QWidget& window, const QString& name, const Place& place);

// Makes `window` one that cannot be resized, with a close box and no other title-bar button, its
// client area as wide and high as `client_area`, in twips.
void fix_frame(QWidget& window, const QString& title, const Place& client_area);

// Makes every caption of `window` fit its box. After the last caption is written.
void fit_captions(const QWidget& window);

} // namespace cirrava
