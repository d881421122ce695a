#include "plain_model.h"
#include "window_fixture.h"

#include <QWheelEvent>
#include <QWindow>
#include <random>

namespace cirrava {

namespace {

const QStringList choosers{"thermal_butt", "Sea_butt", "hvc_butt"};
const QStringList writers{"thermal_command", "sea_command", "hvc_command"};
const QStringList presets =
    QString("ffffff e0e0e0 c0c0c0 808080 404040 000000 ffc0c0 ff8080 c00000 ff0000 800000 400000 "
            "ffe0c0 ffc080 ff8000 c04000 804040 804000 ffffc0 ffff80 ffff00 c0c000 808000 404000 "
            "80ff80 c0ffc0 00ff00 00c000 008000 004000 c0ffff 80ffff 00c0c0 00ffff 008080 004040 "
            "c0c0ff 8080ff 0000ff 0000c0 000040 000080 ffc0ff ff80ff ff00ff c000c0 800080 400040")
        .split(' ');

// Does what a user might do, at random, to the window and to the model of it.
class RandomWalk : public WindowTest {
protected:
    void step() {
        user.heard.clear();
        model_.heard.clear();
        story.clear();
        const QStringList files{"~~temphvc.bmp", "a.bmp", "b.bmp", "c.bmp", "d.bmp"};
        user.path = one_in(6) ? Path() : folder.filePath(files[draw(5)]);
        user.yes = !one_in(4);
        const auto before = model_.cells;
        if (one_in(8))
            return undo_or_redo();
        act();
        if (model_.cells == before)
            return;
        model_.past << before;
        model_.future.clear();
    }

    void act() {
        const int scale = one_in(3) ? draw(3) : model_.working;
        const int number = draw(48);
        const int channel = number % 3;
        switch (draw(15)) {
        case 0:
            press_button(choosers[scale]);
            return model_.choose(scale);
        case 1:
            press_button(QString("color(%1)").arg(number));
            return model_.take(QColor("#" + presets[number]).rgb());
        case 2:
            user.colour = QColor(draw(256), draw(256), draw(256));
            press_button("pickcolor");
            return model_.take(user.colour->rgb());
        case 3:
            user.colour.reset();
            return press_button("pickcolor");
        case 4:
            model_.current[channel] = move_slider(slider(channel), model_.current[channel]);
            return;
        case 5:
            return model_.move_brightness(move_slider(brightness(), 5));
        case 6:
        case 7:
            press_button("Command2");
            return model_.apply();
        case 8:
            press_button("Command1");
            return model_.reset();
        case 9:
            press_button(writers[scale]);
            return model_.generate(scale, user.path, user.yes);
        case 10:
            press_button("Command5");
            return model_.load(user.path);
        case 11:
            return press_key_in_box();
        default:
            return click_cells(scale);
        }
    }

    void compare() {
        ASSERT_EQ(user.heard, model_.heard);
        ASSERT_EQ((QStringList{box(1), box(2), box(3), box(4)}), model_.boxes);
        ASSERT_EQ(caption("Label5"), names[model_.working]);
        for (const char* name : {"Command1", "HScroll4"})
            ASSERT_EQ(find<QWidget>(name).isEnabled(), model_.working == Model::hvc) << name;
        ASSERT_EQ(brightness().value(), 5);
        ASSERT_EQ(find<Swatch>("sample").colour().rgb(),
                  qRgb(model_.current[0], model_.current[1], model_.current[2]));
        const QImage& picture = find<PictureBox>("Picture1").image();
        ASSERT_EQ(picture.width(), model_.picture.size());
        for (const int row : {0, 126, 127, 128, 255})
            for (int column = 0; column < picture.width(); ++column)
                ASSERT_EQ(picture.pixel(column, row), shifted(model_.picture[column], 127 - row))
                    << "picture row " << row << " column " << column;
        for (const int i : {0, 1, 2}) // scale and channel
            ASSERT_NO_FATAL_FAILURE(compare(i));
    }

    void compare(int i) {
        ASSERT_EQ(slider(i).value(), model_.current[i]);
        ASSERT_EQ(caption(QString("Label%1").arg(15 + i)), QString::number(model_.current[i]));
        const bool working = model_.working == i;
        ASSERT_EQ(find<Button>(choosers[i]).face() == QColor(0, 255, 0), working)
            << qPrintable(names[i]);
        ASSERT_EQ(find<Button>(writers[i]).isEnabled(), working) << qPrintable(names[i]);
        const CellArray& cells = *QList{&thermal(), &sea(), &hvc()}[i];
        for (int cell = 0; cell < model_.cells[i].size(); ++cell) {
            const Colour is = cells.colour(cell);
            ASSERT_EQ(qRgb(is % 256, is / 256 % 256, is / 65536), model_.cells[i][cell])
                << qPrintable(names[i]) << " cell " << cell;
        }
    }

    QString story;
    std::mt19937 random;

private:
    int draw(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
    bool one_in(int count) { return draw(count) == 0; }

    NumberBar& slider(int channel) {
        return find<NumberBar>(QString("HScroll%1").arg(channel + 1));
    }

    // Often at an end, of the scale or of the range.
    int any_cell(int scale) {
        const int last = QList{319, 249, 99}[scale];
        const QList ends{0, last, model_.start, model_.end};
        const int cell = one_in(3) ? std::min(ends[draw(4)], last) : draw(last + 1);
        story += QString(" cell %1 of %2").arg(cell).arg(names[scale]);
        return cell;
    }

    // A point of the window; the last cell of a row is the widest.
    QPoint point_of(int scale, int cell) {
        const bool wide = cell % 100 == 99 || cell == QList{319, 249, 99}[scale];
        return {8 + 8 * (cell % 100) + draw(wide ? 17 : 8),
                QList{136, 296, 424}[scale] + cell / 100 * 32 + draw(17)};
    }

    void undo_or_redo() {
        const bool back = one_in(2);
        story += back ? " undo" : " redo";
        const auto keys = back ? QKeySequence::Undo : QKeySequence::Redo;
        QTest::keySequence(window.focusWidget(), keys);
        model_.step_through(back ? model_.past : model_.future, back ? model_.future : model_.past);
    }

    void press_key_in_box() {
        const bool start = one_in(2);
        auto& text_box = find<QWidget>(start ? "Text1" : "Text2");
        text_box.setFocus();
        const auto [key, by] = QList<std::pair<Qt::Key, int>>{
            {Qt::Key_Up, 1},         {Qt::Key_Down, -1},    {Qt::Key_PageUp, 10},
            {Qt::Key_PageDown, -10}, {Qt::Key_Home, -1000}, {Qt::Key_End, 1000}}[draw(6)];
        const bool to_end = std::abs(by) == 1000;
        story += QString(" Text%1 %2").arg(start ? 1 : 2).arg(by);
        QTest::keyClick(&text_box, key, to_end ? Qt::ControlModifier : Qt::NoModifier);
        model_.step(start ? Qt::LeftButton : Qt::RightButton, by);
        if (one_in(2))
            return;
        QTest::keyClick(&text_box, Qt::Key_Return);
        model_.take(model_.cells[model_.working][start ? model_.start : model_.end]);
    }

    // A double click, or a press here and a release there, which counts only from cell to cell.
    void click_cells(int scale) {
        const auto button = QList{Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}[draw(3)];
        int cell = any_cell(scale);
        auto* const system_window = window.windowHandle();
        if (one_in(5)) {
            QTest::mouseDClick(system_window, button, {}, point_of(scale, cell));
            if (button == Qt::LeftButton)
                model_.take(model_.cells[scale][cell]);
            return model_.release(scale, cell, button);
        }
        const QPoint between_rows(9, 160);
        const int outside = draw(16); // 0: where it is pressed, 1: where it is released
        const QPoint press = outside == 0 ? between_rows : point_of(scale, cell);
        QTest::mousePress(system_window, button, {}, press);
        if (one_in(4)) {
            scale = draw(3);
            cell = any_cell(scale);
        }
        const QPoint release = outside == 1 ? between_rows : point_of(scale, cell);
        QTest::mouseRelease(system_window, button, {}, release);
        if (outside > 1)
            model_.release(scale, cell, button);
    }

    void press_button(const QString& name) {
        story += " " + name;
        if (one_in(4))
            QTest::keyClick(&find<Button>(name), one_in(2) ? Qt::Key_Space : Qt::Key_Return);
        else
            press(name);
    }

    // Returns where to.
    int move_slider(NumberBar& bar, int position) {
        const bool more = one_in(2);
        const int way = draw(4);
        story += QString(" %1 %2 way %3").arg(bar.objectName(), more ? "more" : "less").arg(way);
        QWheelEvent turn({9, 9}, bar.mapToGlobal(QPointF(9, 9)), {}, {0, more ? 120 : -120}, {}, {},
                         Qt::NoScrollPhase, false);
        if (way == 0) {
            QTest::keyClick(&bar, more ? Qt::Key_End : Qt::Key_Home);
            return more ? bar.maximum() : 0;
        }
        if (way == 1)
            QTest::keyClick(&bar, more ? Qt::Key_Right : Qt::Key_Left);
        else if (way == 2) // its arrows
            QTest::mouseClick(&bar, Qt::LeftButton, {}, {more ? bar.width() - 5 : 5, 8});
        else
            QCoreApplication::sendEvent(&bar, &turn);
        return std::clamp(position + (more ? 1 : -1), 0, bar.maximum());
    }

    Model model_;
};

} // namespace

// CIRRAVA_WALK_SEED walks a walk again, CIRRAVA_WALK_EVENTS makes it shorter or longer.
TEST_F(RandomWalk, AgreesWithThePlainModelAfterEveryEvent) {
    const auto seed = qEnvironmentVariableIsSet("CIRRAVA_WALK_SEED")
                          ? qgetenv("CIRRAVA_WALK_SEED").toUInt()
                          : std::random_device()();
    const int events = qEnvironmentVariableIsSet("CIRRAVA_WALK_EVENTS")
                           ? qEnvironmentVariableIntValue("CIRRAVA_WALK_EVENTS")
                           : 3'000;
    const std::string start = "CIRRAVA_WALK_SEED=" + std::to_string(seed);
    std::cout << start << std::endl;
    random.seed(seed);
    for (int number = 1; number <= events; ++number) {
        step();
        SCOPED_TRACE(start + ", event " + std::to_string(number) + ":" + story.toStdString());
        ASSERT_NO_FATAL_FAILURE(compare());
    }
}

} // namespace cirrava
