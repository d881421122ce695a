#include "scale_editor/cell_array.h"

#include "scale_editor/accessible_cells.h"
#include "scale_editor/qt_values.h"
#include "widgets/twips.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

namespace cirrava {

namespace {

// In twips.
constexpr int left_margin = 120;
constexpr int pitch = 120;
constexpr int row_pitch = 480;
constexpr int cell_size = 255;
constexpr int strip_inset = 15;
constexpr int underline_top = 255; // from the top of the cell; above the temperatures' letters
constexpr int underline_height = 30;

constexpr int cells_per_row = 100;

} // namespace

CellArray::CellArray(ScaleKind kind) : kind_(kind), colours_(cell_count(kind), RGB(0, 0, 0)) {
    QAccessible::installFactory(accessible_cells); // once, however often it is asked for
}

void CellArray::set_colours(std::span<const Colour> colours) {
    const auto count = std::min<std::ptrdiff_t>(std::ssize(colours), colours_.size());
    if (std::equal(colours.begin(), colours.begin() + count, colours_.cbegin()))
        return;
    std::copy_n(colours.begin(), count, colours_.begin());
    update();
    tell_screen_readers(QAccessible::DescriptionChanged);
}

void CellArray::underline(const QList<Underline>& runs) {
    if (runs == underlines_)
        return;
    underlines_ = runs;
    update();
    tell_screen_readers(QAccessible::SelectionWithin);
}

bool CellArray::is_selected(int cell) const {
    return std::any_of(underlines_.begin(), underlines_.end(), [cell](const Underline& run) {
        return !run.dotted && run.first <= cell && cell <= run.last;
    });
}

void CellArray::lay_out(int top, int dpi) {
    top_ = top;
    dpi_ = dpi;
    const int count = cell_count(kind_);
    const int rows = (count - 1) / cells_per_row;
    const int columns = std::min(count, cells_per_row) - 1;
    setGeometry(to_pixels({left_margin, top, columns * pitch + cell_size,
                           rows * row_pitch + underline_top + underline_height},
                          dpi));
}

QRect CellArray::cell_box(int cell) const {
    return cell_pixels(cell, {0, 0, cell_size, cell_size});
}

QRect CellArray::strip(int cell) const {
    return cell_pixels(cell, {0, strip_inset, visible_width(cell), cell_size - 2 * strip_inset});
}

int CellArray::visible_width(int cell) const {
    const bool last_of_row = (cell + 1) % cells_per_row == 0 || cell + 1 == cell_count(kind_);
    return last_of_row ? cell_size : pitch;
}

QRect CellArray::cell_pixels(int cell, const TwipRect& part) const {
    const int left = left_margin + pitch * (cell % cells_per_row) + part.left;
    const int top = top_ + row_pitch * (cell / cells_per_row) + part.top;
    return to_pixels({left, top, part.width, part.height}, dpi_).translated(-pos());
}

int CellArray::cell_at(QPoint point) const {
    int cell = cell_count(kind_) - 1; // the highest first, since it lies on top
    while (cell >= 0 && !cell_box(cell).contains(point))
        --cell;
    return cell;
}

bool CellArray::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int cell = cell_at(help->pos());
    if (cell < 0)
        QToolTip::hideText();
    else
        QToolTip::showText(help->globalPos(), to_qt(tooltip_text(kind_, cell)), this, strip(cell));
    return true;
}

void CellArray::paintEvent(QPaintEvent* event) {
    QPainter painter(this); // without antialiasing, edges fall on device pixels at every scale
    for (int cell = 0; cell < cell_count(kind_); ++cell) {
        const QRect box = strip(cell);
        if (event->region().intersects(box))
            painter.fillRect(box, to_qt(colour(cell)));
    }
    for (const Underline& run : underlines_)
        paint_underline(painter, run);
}

void CellArray::paint_underline(QPainter& painter, const Underline& run) const {
    for (int cell = run.first; cell <= run.last; ++cell) {
        const int width = visible_width(cell);
        const int dash = run.dotted ? underline_height : width;
        for (int left = 0; left < width; left += 2 * dash)
            painter.fillRect(cell_pixels(cell, {left, underline_top, dash, underline_height}),
                             palette().color(QPalette::Highlight));
    }
}

void CellArray::tell_screen_readers(QAccessible::Event what) {
    QAccessibleEvent event(this, what);
    QAccessible::updateAccessibility(&event);
}

void CellArray::mousePressEvent(QMouseEvent* event) {
    pressed_on_cells_.setFlag(event->button(), hit(*event).has_value());
}

void CellArray::mouseReleaseEvent(QMouseEvent* event) {
    const auto released_over = hit(*event);
    if (released_over && pressed_on_cells_.testFlag(event->button()))
        released_over->scale->mark(released_over->cell, event->button() == Qt::LeftButton
                                                            ? RangeEnd::start
                                                            : RangeEnd::end);
    pressed_on_cells_.setFlag(event->button(), false);
}

void CellArray::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    const int cell = cell_at(event->position().toPoint());
    if (cell >= 0 && event->button() == Qt::LeftButton)
        copy_colour(cell);
}

std::optional<CellArray::Hit> CellArray::hit(const QMouseEvent& event) const {
    // While a button is down, its events come here, wherever the pointer has gone.
    const QPoint in_window = mapToParent(event.position().toPoint());
    auto* const scale = qobject_cast<CellArray*>(parentWidget()->childAt(in_window));
    const int cell = scale != nullptr ? scale->cell_at(scale->mapFromParent(in_window)) : -1;
    return cell >= 0 ? std::optional(Hit{scale, cell}) : std::nullopt;
}

} // namespace cirrava
