#pragma once

#include "ui/look.h"
#include "widgets/button.h"
#include "widgets/twips.h"

#include <QLabel>

namespace cirrava {

// Lays out a window that cannot be resized, from rectangles in twips and fonts in points. Where the
// window would not fit on its screen, the layout is made for fewer dots per inch than the screen
// has, down to 0.6 device pixels for each.
class Placer {
public:
    // Gives `window` that title, a close box and no other title-bar button, a client area of that
    // size in twips, and the outline of the focus.
    Placer(QWidget& window, const QString& title, QSize client_area);

    int dpi() const { return dpi_; }
    double shrink() const { return shrink_; } // of the screen's dots per inch; 1 where it fits

    // These put a control into the window under that name. Screen readers say `spoken`.
    void control(QWidget& control, const QString& name, const QString& spoken,
                 const TwipRect& rect) const;
    void label(QLabel& label, const QString& name, const QString& text, const TwipRect& rect,
               const Look& look = {}) const;
    void button(Button& button, const QString& name, const QString& caption, const TwipRect& rect,
                const Look& look = {}) const;

    // Gives `control` the font and colours of `look`.
    void give_look(QWidget& control, const Look& look) const;

private:
    QFont scaled_font(const FontLook& look) const;

    QWidget& window_;
    int dpi_;
    double shrink_;
};

// Narrows the font of every caption of `window` until it fits its box, wrapped where the box has
// room for several lines. Fonts differ in width from one machine to the next; boxes do not. To be
// called after the last caption is written.
void fit_captions(QWidget& window);

} // namespace cirrava
