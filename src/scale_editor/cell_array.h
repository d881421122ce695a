#pragma once

#include "scale_editor/colour.h"
#include "scale_editor/range.h"

#include <QWidget>
#include <optional>
#include <span>

namespace cirrava {

// All cells of one scale: rows of 100 cells that overlap like tiles, so that each shows a strip 120
// twips wide and the last of a row its whole 255. The colours of the cells are the only
// store of the palette. Every cell starts black.
//
// The widget covers the labels between its rows; there it is transparent and reacts to nothing.
class CellArray : public QWidget {
    Q_OBJECT
public:
    explicit CellArray(ScaleKind kind);

    ScaleKind kind() const { return kind_; }
    const QList<Colour>& colours() const { return colours_; }
    Colour colour(int cell) const { return colours_.at(cell); }

    // `cell` must be one of the scale's. Repaints it.
    void set_colour(int cell, Colour colour);

    // Sets the first cells, at most as many as the scale has.
    void set_colours(std::span<const Colour> colours);

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

    QRect cell_pixels(int cell, int inset_top, int width, int height) const;

    ScaleKind kind_;
    QList<Colour> colours_;
    int top_ = 0;
    int dpi_ = 96;
    Qt::MouseButtons pressed_on_cells_; // and not yet released
};

} // namespace cirrava
