#pragma once

#include "scale_editor/colour.h"
#include "scale_editor/range.h"
#include "scale_editor/scale.h"
#include "widgets/spoken.h"
#include "widgets/twips.h"

#include <QList>
#include <QWidget>
#include <span>

namespace cirrava {

// All cells of one scale, in rows of 100. They overlap like tiles, so that each shows a strip 120
// twips wide and the last of a row its whole 255. The colours of the cells are the only store of
// the palette; every cell starts black.
//
// The widget also covers the temperatures between its rows. There it is transparent, but for the
// lines under cells, and a press counts only while another button is held.
class CellArray : public QWidget, public Spoken {
    Q_OBJECT
public:
    explicit CellArray(ScaleKind kind);

    ScaleKind kind() const { return kind_; }
    const QList<Colour>& colours() const { return colours_; }
    Colour colour(int cell) const { return colours_.at(cell); }

    // Sets the first cells, at most as many as the scale has.
    void set_colours(std::span<const Colour> colours);
    void fill(const Range& range, Colour colour);

    // Draws a full line under the `marked` cells and a dotted one under the others of `dotted`, in
    // place of the lines there were.
    void underline(const QList<Range>& marked, const Range& dotted);
    bool is_marked(int cell) const;

    // Puts the scale into its parent window, its first cell so many twips from the window's left
    // and top. The window has `dpi` logical dots per inch.
    void lay_out(int left, int top, int dpi);

    // The whole of a cell, in this widget's pixels. The next cell lies over a part of it.
    QRect cell_box(int cell) const;

    // The part of a cell that shows its colour, which no other cell lies over.
    QRect strip(int cell) const;

    // The uppermost cell at `point`; -1 where there is none.
    int cell_at(QPointF point) const;

    // A list of its cells, each with its number and temperatures as name, its colour as
    // description, its position, and the actions of its mouse buttons.
    QAccessibleInterface* new_accessible() override;

    // Marks the cell at `point` of the window, if there is one.
    void mark_at(QPointF point, Side side);

signals:
    void changed(); // a colour, or several at once
    void marked(int cell, Side side);
    void colour_asked(int cell); // by a double click with the left button, or a screen reader

    // A mouse button was released at `point` of the window: the left one for the start of the
    // range, any other for its end. It was pressed over a cell, or anywhere while such a one was
    // held.
    void released(QPointF point, Side side);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QPointF place_of(const QMouseEvent& event) const; // in the window
    int cell_under(const QMouseEvent& event) const;   // -1 where there is none
    QList<QRectF> rows_of(const Range& cells) const;
    int visible_width(int cell) const;                        // in twips
    QRect to_pixels_of(int cell, const TwipRect& part) const; // `part` from the cell's top left

    ScaleKind kind_;
    QList<Colour> colours_;
    QList<Range> marked_;
    Range dotted_;
    int left_ = 0;
    int top_ = 0;
    int dpi_ = 96;
    int hovered_ = -1;         // where the pointer last moved here; -1 is no cell
    Qt::MouseButtons pressed_; // whose release counts
};

} // namespace cirrava
