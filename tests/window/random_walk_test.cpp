#include "plain_model.h"
#include "window_fixture.h"

#include <QWheelEvent>
#include <QWindow>
#include <random>

namespace cirrava {

namespace {

const QStringList choosers{"thermal_butt", "Sea_butt", "hvc_butt"};
const QStringList writers{"thermal_command", "sea_command", "hvc_command"};

int to_model(const QColor& colour) {
    return colour.red() + 256 * colour.green() + 65536 * colour.blue();
}

// Does what a user might do, at random, to the window and to the model of it.
class RandomWalk : public WindowTest {
protected:
    void step() {
        const auto before = model_.cells;
        if (one_in(8))
            return undo_or_redo();
        act();
        model_.remember(before);
    }

    void compare() {
        ASSERT_EQ(user.heard, model_.told);
        ASSERT_EQ((QStringList{box(1), box(2), box(3), box(4)}), model_.boxes);
        ASSERT_EQ(caption("Label5"), QList({"Thermal", "Sea", "HVC"})[model_.working]);
        ASSERT_EQ(find<Button>("Command1").isEnabled(), model_.working == Model::hvc);
        ASSERT_EQ(brightness().isEnabled(), model_.working == Model::hvc);
        ASSERT_EQ(brightness().value(), 5);
        ASSERT_EQ(to_model(swatch()), model_.colour());
        for (const int i : {0, 1, 2}) { // channel and scale
            ASSERT_EQ(slider(i).value(), model_.current[i]);
            ASSERT_EQ(caption(QString("Label%1").arg(15 + i)), QString::number(model_.current[i]));
            ASSERT_EQ(find<Button>(choosers[i]).face() == QColor(Qt::green), model_.working == i);
            ASSERT_EQ(find<Button>(writers[i]).isEnabled(), model_.working == i);
            const CellArray& cells = *QList{&thermal(), &sea(), &hvc()}[i];
            ASSERT_EQ(cells.colours(), model_.cells[i]);
            for (int cell = 0; cell <= model_.last_cells[i]; ++cell)
                ASSERT_EQ(cells.is_selected(cell), model_.is_selected(i, cell)) << i << ' ' << cell;
        }
        const QImage& picture = find<PictureBox>("Picture1").image();
        ASSERT_EQ(picture.width(), model_.picture.size());
        for (int x = 0; x < picture.width(); ++x)
            for (const int y : {0, 126, 127, 128, 255})
                ASSERT_EQ(to_model(picture.pixelColor(x, y)), shifted(model_.picture[x], 127 - y));
    }

    std::mt19937 random;

private:
    void act() {
        const int scale = one_in(3) ? draw(3) : model_.working;
        const int channel = draw(3);
        const QString preset = QString("color(%1)").arg(draw(48));
        switch (draw(12)) {
        case 0:
            press_button(choosers[scale]);
            return model_.choose(scale);
        case 1:
            press_button(preset);
            return model_.take(to_model(find<Button>(preset).face()));
        case 2:
            user.colour.reset();
            if (!one_in(3))
                user.colour = QColor(draw(256), draw(256), draw(256));
            model_.told << (swatch() == Qt::black ? "#ffffff" : swatch().name());
            press_button("pickcolor");
            return user.colour ? model_.take(to_model(*user.colour)) : void();
        case 3:
            model_.current[channel] = move_slider(slider(channel), model_.current[channel]);
            return;
        case 4:
            return model_.move_brightness(move_slider(brightness(), 5));
        case 5:
        case 6:
            press_button("Command2");
            return model_.apply();
        case 7:
            press_button("Command1");
            return model_.reset();
        case 8:
            return press_key_in_box();
        default:
            return click_cells(scale);
        }
    }

    int draw(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
    bool one_in(int count) { return draw(count) == 0; }

    NumberBar& slider(int channel) {
        return find<NumberBar>(QString("HScroll%1").arg(channel + 1));
    }

    // Often at an end, of the scale or of the range.
    int any_cell(int scale) {
        const int last = model_.last_cells[scale];
        const QList ends{0, last, model_.ends[0], model_.ends[1]};
        return one_in(3) ? std::min(ends[draw(4)], last) : draw(last + 1);
    }

    // A point of the window; the last cell of a row is the widest.
    QPoint point_of(int scale, int cell) {
        const bool wide = cell % 100 == 99 || cell == model_.last_cells[scale];
        return {8 + 8 * (cell % 100) + draw(wide ? 17 : 8),
                QList{136, 296, 424}[scale] + cell / 100 * 32 + draw(17)};
    }

    void undo_or_redo() {
        const bool back = one_in(2);
        const QString keys = back ? "Ctrl+Z" : one_in(2) ? "Ctrl+Y" : "Ctrl+Shift+Z";
        QTest::keySequence(window.focusWidget(), QKeySequence(keys));
        model_.step_through(back ? model_.past : model_.future, back ? model_.future : model_.past);
    }

    void press_key_in_box() {
        const int side = draw(2);
        auto& text_box = find<QWidget>(side == 0 ? "Text1" : "Text2");
        text_box.setFocus();
        const auto [key, by] = QList<std::pair<Qt::Key, int>>{
            {Qt::Key_Up, 1},       {Qt::Key_Down, -1},   {Qt::Key_Right, 1},
            {Qt::Key_Left, -1},    {Qt::Key_PageUp, 10}, {Qt::Key_PageDown, -10},
            {Qt::Key_Home, -1000}, {Qt::Key_End, 1000}}[draw(8)];
        const auto pad = one_in(2) ? Qt::KeypadModifier : Qt::NoModifier;
        const auto control = std::abs(by) == 1000 ? Qt::ControlModifier : Qt::NoModifier;
        QTest::keyClick(&text_box, key, control | pad);
        model_.step(side, by);
        if (one_in(2))
            return;
        QTest::keyClick(&text_box, one_in(2) ? Qt::Key_Enter : Qt::Key_Return, pad);
        model_.take(model_.cells[model_.working][model_.ends[side]]);
    }

    // A double click, or a press here and a release there, which counts only from cell to cell.
    void click_cells(int scale) {
        const auto button = QList{Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}[draw(3)];
        const int side = button == Qt::LeftButton ? 0 : 1;
        int cell = any_cell(scale);
        auto* const system_window = window.windowHandle();
        if (one_in(5)) {
            QTest::mouseDClick(system_window, button, {}, point_of(scale, cell));
            if (side == 0)
                model_.take(model_.cells[scale][cell]);
            return model_.mark(scale, cell, side);
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
            model_.mark(scale, cell, side);
    }

    void press_button(const QString& name) {
        const auto scale = choosers.indexOf(name);
        if (scale >= 0 && one_in(3))
            QTest::keySequence(window.focusWidget(), Qt::CTRL | Qt::Key(Qt::Key_1 + scale));
        else if (one_in(4))
            QTest::keyClick(&find<Button>(name), one_in(2) ? Qt::Key_Space : Qt::Key_Return);
        else
            press(name);
    }

    // Returns where to.
    int move_slider(NumberBar& bar, int position) {
        const bool more = one_in(2);
        const int way = draw(4);
        if (way == 0) {
            QTest::keyClick(&bar, more ? Qt::Key_End : Qt::Key_Home);
            return more ? bar.maximum() : 0;
        }
        if (way == 1)
            QTest::keyClick(&bar, more ? Qt::Key_Right : Qt::Key_Left);
        if (way == 2) // its arrows
            QTest::mouseClick(&bar, Qt::LeftButton, {}, {more ? bar.width() - 5 : 5, 8});
        for (int part = 0; way == 3 && part < 3; ++part) { // a fine wheel, a notch in all
            QWheelEvent turn({9, 9}, bar.mapToGlobal(QPointF(9, 9)), {}, {0, more ? 40 : -40}, {},
                             {}, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&bar, &turn);
        }
        return std::clamp(position + (more ? 1 : -1), 0, bar.maximum());
    }

    Model model_;
};

} // namespace

// CIRRAVA_WALK_SEED walks a walk again.
TEST_F(RandomWalk, AgreesWithThePlainModelAfterEveryEvent) {
    const unsigned seed = qEnvironmentVariableIsSet("CIRRAVA_WALK_SEED")
                              ? qgetenv("CIRRAVA_WALK_SEED").toUInt()
                              : std::random_device()();
    std::cout << "CIRRAVA_WALK_SEED=" << seed << '\n' << std::flush;
    random.seed(seed);
    for (int number = 0; number < 3'000; ++number) {
        step();
        SCOPED_TRACE("event " + std::to_string(number));
        ASSERT_NO_FATAL_FAILURE(compare());
    }
}

} // namespace cirrava
