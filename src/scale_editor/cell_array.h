#pragma once

#include "scale_editor/colour.h"
#include "scale_editor/range.h"
#include "widgets/twips.h"

#include <QAccessible>
#include <QWidget>
#include <optional>
#include <span>

namespace cirrava {

// Cells `first` to `last` of a scale, with a full line under those that are marked, and a dotted
// one under those that only the brightness slider would change.
struct Underline {
    int first = 0;
    int last = 0;
    bool dotted = false;

    bool operator==(const Underline&) const = default;
};

// All cells of one scale: rows of 100 cells that overlap like tiles, so that each shows a strip 120
// twips wide and the last of a row its whole 255. The colours of the cells are the only
// store of the palette. Every cell starts black.
//
// The widget covers the labels between its rows; there it is transparent, but for the line under
// marked cells, and reacts to nothing.
class CellArray : public QWidget {
    Q_OBJECT
public:
    explicit CellArray(ScaleKind kind);

    ScaleKind kind() const { return kind_; }
    const QList<Colour>& colours() const { return colours_; }
    Colour colour(int cell) const { return colours_.at(cell); }

    // Sets the first cells, at most as many as the scale has.
    void set_colours(std::span<const Colour> colours);

    // Draws a line under the cells of each run, in place of the lines there were.
    void underline(const QList<Underline>& runs);
    bool is_selected(int cell) const; // has a full line

    // Puts the scale into its parent window, its first row `top` twips from the top, for `dpi`
    // logical dots per inch.
    void lay_out(int top, int dpi);

    // Where a cell takes the mouse, in this widget's pixels; a cell lies over the one before it.
    QRect cell_box(int cell) const;

    // Where a cell shows its colour: as wide as nothing lies over it.
    QRect strip(int cell) const;

    // The cell that takes the mouse at `point`; -1 outside every cell.
    int cell_at(QPoint point) const;

    // What mouse and screen reader do with a cell.
    void mark(int cell, RangeEnd end) { emit marked(cell, end); }
    void copy_colour(int cell) { emit colour_asked(cell); }

signals:
    // By a release of the left button for the start, of any other for the end; it was pressed over
    // a cell of this or another scale.
    void marked(int cell, RangeEnd end);
    void colour_asked(int cell); // by a double click with the left button

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    struct Hit {
        CellArray* scale;
        int cell;
    };
    // The cell under the pointer, of any scale of the window.
    std::optional<Hit> hit(const QMouseEvent& event) const;

    void tell_screen_readers(QAccessible::Event what);
    void paint_underline(QPainter& painter, const Underline& run) const;
    int visible_width(int cell) const;                       // in twips
    QRect cell_pixels(int cell, const TwipRect& part) const; // `part` from the cell's top left

    ScaleKind kind_;
    QList<Colour> colours_;
    QList<Underline> underlines_;
    int top_ = 0;
    int dpi_ = 96;
    Qt::MouseButtons pressed_on_cells_; // and not yet released
};

} // namespace cirrava
