#include "scale_editor/cell_array.h"

#include "scale_editor/qt_values.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QtMath>
#include <algorithm>
#include <iterator>

namespace cirrava {

namespace {

// In twips.
constexpr int pitch = 120;
constexpr int row_pitch = 480;
constexpr int cell_size = 255;
constexpr int strip_inset = 15;
constexpr int room_for_line = 360; // from the top of the cell to below the line under it

constexpr int cells_per_row = 100;

} // namespace

CellArray::CellArray(ScaleKind kind) : kind_(kind), colours_(cell_count(kind), RGB(0, 0, 0)) {
    setMouseTracking(true);
}

void CellArray::set_colours(std::span<const Colour> colours) {
    const auto count = std::min<std::ptrdiff_t>(std::ssize(colours), colours_.size());
    if (std::equal(colours.begin(), colours.begin() + count, colours_.cbegin()))
        return;
    std::copy_n(colours.begin(), count, colours_.begin());
    update();
    QAccessibleEvent event(this, QAccessible::DescriptionChanged); // who keeps it asks anew
    QAccessible::updateAccessibility(&event);
    emit changed();
}

void CellArray::fill(const Range& range, Colour colour) {
    auto colours = colours_;
    for (int cell = range.first; cell <= range.last; ++cell)
        colours[cell] = colour;
    set_colours(colours);
}

void CellArray::underline(const QList<Range>& marked, const Range& dotted) {
    if (marked == marked_ && dotted == dotted_)
        return;
    marked_ = marked;
    dotted_ = dotted;
    update();
}

bool CellArray::is_marked(int cell) const {
    return std::ranges::any_of(marked_, [cell](const Range& run) { return run.holds(cell); });
}

void CellArray::lay_out(int left, int top, int dpi) {
    left_ = left;
    top_ = top;
    dpi_ = dpi;
    const int count = cell_count(kind_);
    const int last_row = (count - 1) / cells_per_row;
    const int last_column = std::min(count, cells_per_row) - 1;
    const TwipRect all{left, top, last_column * pitch + cell_size,
                       last_row * row_pitch + room_for_line};
    setGeometry(to_pixels(all, dpi) + QMargins(1, 1, 1, 0)); // a hairline; below is room
}

QRect CellArray::cell_box(int cell) const {
    return to_pixels_of(cell, {0, 0, cell_size, cell_size});
}

QRect CellArray::strip(int cell) const {
    return to_pixels_of(cell, {0, strip_inset, visible_width(cell), cell_size - 2 * strip_inset});
}

int CellArray::visible_width(int cell) const {
    const bool last_of_row = (cell + 1) % cells_per_row == 0 || cell + 1 == cell_count(kind_);
    return last_of_row ? cell_size : pitch;
}

QRect CellArray::to_pixels_of(int cell, const TwipRect& part) const {
    const int left = left_ + pitch * (cell % cells_per_row) + part.left;
    const int top = top_ + row_pitch * (cell / cells_per_row) + part.top;
    return to_pixels({left, top, part.width, part.height}, dpi_).translated(-pos());
}

int CellArray::cell_at(QPointF point) const {
    // A screen of high density has points between whole pixels; each belongs to the pixel it is in.
    const QPoint pixel(qFloor(point.x()), qFloor(point.y()));
    int cell = cell_count(kind_) - 1; // the last first, since it lies over those before it
    while (cell >= 0 && !cell_box(cell).contains(pixel))
        --cell;
    return cell;
}

bool CellArray::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked)
        pressed_ = {}; // the window that opens gets the releases
    if (event->type() != QEvent::ToolTip || hovered_ < 0)
        return QWidget::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       to_qt(tooltip_text(kind_, hovered_)), this);
    return true;
}

// The painter does not smooth edges. So what is whole device pixels high is so wherever it starts.
void CellArray::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const double device_pixels = devicePixelRatioF(); // to a pixel
    const double hairline = qMax(1, qFloor(device_pixels)) / device_pixels;
    for (const QRectF& row : rows_of({0, cell_count(kind_) - 1}))
        painter.fillRect(row.adjusted(-hairline, -hairline, hairline, hairline),
                         palette().color(QPalette::Mid));
    for (int cell = 0; cell < cell_count(kind_); ++cell) {
        const QRect box = strip(cell);
        if (event->region().intersects(box))
            painter.fillRect(box, to_qt(colour(cell)));
    }
    const double thickness = qMax(1, qFloor(2 * device_pixels)) / device_pixels;
    const auto paint_lines = [&](const Range& cells, double dash) {
        for (const QRectF& row : rows_of(cells))
            for (int i = 0; 2 * i * dash < row.width(); ++i) {
                const double left = row.left() + 2 * i * dash;
                painter.fillRect(QRectF(left, row.bottom() + 2 * hairline,
                                        std::min(dash, row.right() - left), thickness),
                                 palette().color(QPalette::Highlight));
            }
    };
    paint_lines(dotted_, thickness);
    for (const Range& range : marked_)
        paint_lines(range, width());
}

// The strips of `cells` together, one box for each row.
QList<QRectF> CellArray::rows_of(const Range& cells) const {
    QList<QRectF> rows;
    for (int first = cells.first; first <= cells.last;) {
        const int next_row = first - first % cells_per_row + cells_per_row;
        rows << (strip(first) | strip(std::min(cells.last, next_row - 1)));
        first = next_row;
    }
    return rows;
}

// The places at which Qt shows and hides a tooltip by itself are rounded.
void CellArray::mouseMoveEvent(QMouseEvent* event) {
    if (const int cell = cell_under(*event); cell != hovered_) {
        hovered_ = cell;
        QToolTip::hideText();
    }
}

// While a button that was pressed over a cell is held, Qt sends the others here too, from wherever
// they are pressed.
void CellArray::mousePressEvent(QMouseEvent* event) {
    pressed_.setFlag(event->button(), pressed_ || cell_under(*event) >= 0);
}

void CellArray::mouseReleaseEvent(QMouseEvent* event) {
    if (pressed_.testFlag(event->button()))
        emit released(place_of(*event),
                      event->button() == Qt::LeftButton ? Side::start : Side::end);
    pressed_.setFlag(event->button(), false);
}

void CellArray::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    const int cell = cell_under(*event);
    if (cell >= 0 && event->button() == Qt::LeftButton)
        emit colour_asked(cell);
}

// Places in the widget itself and on the screen are rounded, on dense screens to the pixel beside
// the right one. That in the scene is not: in the widget that has a handle of its own.
QPointF CellArray::place_of(const QMouseEvent& event) const {
    const QWidget* const scene = windowHandle() != nullptr ? this : nativeParentWidget();
    return scene->mapTo(window(), event.scenePosition());
}

int CellArray::cell_under(const QMouseEvent& event) const {
    return cell_at(mapFrom(window(), place_of(event)));
}

void CellArray::mark_at(QPointF point, Side side) {
    if (const int cell = cell_at(mapFrom(window(), point)); cell >= 0)
        emit marked(cell, side);
}

} // namespace cirrava
