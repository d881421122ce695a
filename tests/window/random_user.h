#pragma once

#include "window_fixture.h"

#include <QDebug>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <random>

namespace cirrava {

// Works the window's controls by mouse and keys, in ways and places drawn at random.
class RandomUser : public WindowTest {
protected:
    void start_from(std::uint64_t seed) { random_.seed(seed); }

    int draw(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    bool one_in(int count) { return draw(count) == 0; }
    template <class Value> Value any(const QList<Value>& list) {
        return list[draw(static_cast<int>(list.size()))];
    }
    Qt::MouseButton any_button() {
        return any<Qt::MouseButton>({Qt::LeftButton, Qt::RightButton, Qt::MiddleButton});
    }

    // Adds to what is told of the event when it goes wrong.
    QDebug say() { return QDebug(&story); }

    // A point of the window, and the cell there.
    struct Place {
        QPoint point;
        int scale = -1; // none: outside every cell
        int cell = 0;
    };

    // Mostly of `favourite`, since a range has both its ends on one scale.
    Place any_cell(int favourite) {
        const int scale = one_in(3) ? draw(3) : favourite;
        const int cell = draw(QList{320, 250, 100}[scale]);
        const int top = QList{136, 296, 424}[scale]; // of the first row
        const QPoint corner(8 + 8 * (cell % 100), top + 32 * (cell / 100));
        return {corner + QPoint(draw(8), draw(16)), scale, cell};
    }

    // A cell or, as often, no cell.
    Place anywhere(int favourite) {
        const Place place = any_cell(favourite);
        const QPoint outside(-1 - draw(50), place.point.y());
        const QPoint between_rows(place.point.x(), place.point.y() / 32 * 32 + 30);
        return one_in(2) ? place
                         : Place{any<QPoint>({outside, between_rows, middle_of("color(7)")})};
    }

    QPoint middle_of(const QString& control) {
        auto& widget = find<QWidget>(control);
        return widget.mapTo(&window, widget.rect().center());
    }

    // In the window, so that the toolkit finds the control under the pointer by itself.
    void press_mouse(QPoint point, Qt::MouseButton button) {
        say() << button << "down at" << point;
        QTest::mousePress(window.windowHandle(), button, {}, point);
    }

    void release_mouse(QPoint point, Qt::MouseButton button) {
        say() << button << "up at" << point;
        QTest::mouseRelease(window.windowHandle(), button, {}, point);
    }

    // Clicks on a button of the window or presses its key. True when that works an enabled button.
    bool press_button(const QString& name) {
        say() << name;
        if (one_in(10)) {
            say() << "by key";
            QTest::keyClick(&find<Button>(name), Qt::Key_Space);
            return true;
        }
        const auto button = one_in(6) ? any_button() : Qt::LeftButton;
        const QPoint point = middle_of(name);
        const QPoint end = one_in(10) ? point - QPoint(0, 60) : point;
        press_mouse(point, button);
        release_mouse(end, button);
        return button == Qt::LeftButton && end == point;
    }

    // Moves a slider that stands at `position` in one of many ways. Returns where to.
    int move_slider(NumberBar& bar, int position) {
        const int last = bar.maximum();
        const bool more = one_in(2);
        const int way = draw(7);
        say() << bar.objectName() << (more ? "more" : "less") << "way" << way;
        if (way < 2)
            return drag_slider(bar, position, draw(last + 1));
        if (way == 2) {
            const QPointF place = bar.rect().center();
            QWheelEvent turn(place, bar.mapToGlobal(place), {}, {0, more ? 120 : -120},
                             Qt::NoButton, {}, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&bar, &turn);
        } else if (way == 3 && one_in(4)) {
            QTest::keyClick(&bar, more ? Qt::Key_End : Qt::Key_Home);
            return more ? last : 0;
        } else if (way < 5) {
            QTest::keyClick(&bar, more ? Qt::Key_Right : Qt::Key_Left);
        } else {
            const auto arrow = more ? QStyle::SC_ScrollBarAddLine : QStyle::SC_ScrollBarSubLine;
            const auto track = more ? QStyle::SC_ScrollBarAddPage : QStyle::SC_ScrollBarSubPage;
            const bool no_track = part(bar, track).width() < 2; // at the end
            const QPoint inside = part(bar, way == 5 || no_track ? arrow : track).center();
            press_mouse(bar.mapTo(&window, inside), Qt::LeftButton);
            release_mouse(bar.mapTo(&window, inside), Qt::LeftButton);
        }
        return std::clamp(position + (more ? 1 : -1), 0, last);
    }

    // Returns where a drag of the thumb to `target` ends.
    int drag_slider(NumberBar& bar, int position, int target) {
        const QRect thumb = part(bar, QStyle::SC_ScrollBarSlider);
        const int track = part(bar, QStyle::SC_ScrollBarGroove).width() - thumb.width();
        const auto pixel = [&](int value) {
            return QStyle::sliderPositionFromValue(0, bar.maximum(), value, track);
        };
        const QPoint from = bar.mapTo(&window, thumb.center());
        const QPoint to = from + QPoint(pixel(target) - pixel(position), 0);
        press_mouse(from, Qt::LeftButton);
        QTest::mouseMove(window.windowHandle(), (from + to) / 2);
        QTest::mouseMove(window.windowHandle(), to);
        const int reached = bar.sliderPosition();
        release_mouse(to, Qt::LeftButton);
        say() << "dragged to" << reached << "for" << target;
        // A pixel of a short track is several positions.
        return std::abs(reached - target) <= bar.maximum() / track ? reached : target;
    }

    QByteArray noise(int length) {
        QByteArray bytes;
        while (length-- > 0)
            bytes.append(static_cast<char>(draw(256)));
        return bytes;
    }

    QString story;

private:
    std::mt19937_64 random_;
};

} // namespace cirrava
