#include "window_fixture.h"

namespace cirrava {

using Controls = WindowTest;

TEST_F(Controls, CellsAreHeardAndWorkedByScreenReaders) {
    paint("thermal_char", 30, 40, 12);
    const auto& cells = heard("thermal_char");
    auto* const cell = cells.child(35);
    EXPECT_EQ(cells.indexOfChild(cell), 35);
    EXPECT_EQ(cell->text(QAccessible::Name), "cell 36, -92.5 C, -134.5 F");
    EXPECT_EQ(cell->text(QAccessible::Description), "red 255, green 224, blue 192");
    EXPECT_EQ(cell->rect().topLeft(), thermal().mapToGlobal(thermal().strip(35).topLeft()));
    EXPECT_EQ(cells.childAt(cell->rect().x(), cell->rect().y()), cell);
    EXPECT_TRUE(cell->state().selectable && cell->state().selected);
    EXPECT_FALSE(cells.child(41)->state().selected);
    act("click color(5)");
    for (const QString& action : cell->actionInterface()->actionNames())
        cell->actionInterface()->doAction(action); // mark as start, as end, copy the colour
    EXPECT_EQ(text("Text1"), "-92.5");
    EXPECT_EQ(text("Text2"), "-92.5");
    EXPECT_EQ(swatch(), QColor(255, 224, 192));
}

TEST_F(Controls, BoxesTellWhatTheyShow) {
    auto* const value = heard("Text1").valueInterface();
    EXPECT_EQ(heard("Text1").role(), QAccessible::SpinBox);
    EXPECT_TRUE(qIsNaN(value->currentValue().toDouble()));
    EXPECT_EQ(heard("Text1").text(QAccessible::Description), "blank");
    act("left Label2 1");
    EXPECT_DOUBLE_EQ(value->currentValue().toDouble(), -9.8);
    EXPECT_DOUBLE_EQ(value->maximumValue().toDouble(), 39.8);
}

TEST_F(Controls, OtherProgramsDoNotWorkADisabledSlider) {
    brightness().setValue(9);
    EXPECT_EQ(brightness().value(), 5);
    EXPECT_FALSE(brightness().isEnabled());
}

TEST_F(Controls, HeldKeysPressNothingTwice) {
    // X11 sends a repetition as a release and a press in one instant.
    const auto press_enter = [this](QEvent::Type type, quint64 instant, bool repeat = false) {
        QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier, "\r", repeat);
        event.setTimestamp(instant);
        QCoreApplication::sendEvent(window.windowHandle(), &event);
    };
    find("color(9)").setFocus();
    press_enter(QEvent::KeyPress, 1);
    find("color(3)").setFocus();
    press_enter(QEvent::KeyPress, 2, true);
    press_enter(QEvent::KeyRelease, 3);
    press_enter(QEvent::KeyPress, 3);
    EXPECT_EQ(swatch(), Qt::red);
    act("left Label2 1"); // after which no key is held, even if its release was lost
    press_enter(QEvent::KeyPress, 4, true);
    EXPECT_EQ(swatch(), QColor(128, 128, 128));
}

TEST_F(Controls, SlidersMoveByOne) {
    Slider& bar = find<Slider>("HScroll1");
    mouse(QTest::MouseClick, bar, {bar.width() - 4, 8}); // the arrow
    EXPECT_EQ(bar.value(), 1);
    mouse(QTest::MouseClick, bar, {bar.width() - 30, 8}); // the track
    EXPECT_EQ(bar.value(), 2);
    EXPECT_TRUE(bar.hasFocus());
    for (const QPoint part : {QPoint(0, 40), {0, 40}, {-40, 0}}) { // of a notch of a fine wheel
        QWheelEvent turn({9, 9}, {9, 9}, {}, part, {}, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&bar, &turn);
    }
    mouse(QTest::MouseClick, bar, bar.rect().center(), Qt::MiddleButton); // which does nothing
    EXPECT_EQ(swatch(), QColor(3, 0, 0));
}

TEST_F(Controls, TheTemperaturesInBoxesCanBeMarked) {
    act("left thermal_char 35");
    QLabel& box = find<QLabel>("Text1");
    QTest::mouseMove(window.windowHandle(), box.geometry().center()); // as the pointer comes there
    mouse(QTest::MouseDClick, box, {12, 8});
    EXPECT_TRUE(box.selectedText().startsWith("92")) << qPrintable(box.selectedText()); // of -92.5
    act("press Text2 Shift+Tab");
    EXPECT_TRUE(box.hasFocus()); // as before it was pointed at
}

TEST_F(Controls, TheColourDialogOpensAtTheColour) {
    user.colour = Qt::red;
    act("click pickcolor");
    user.colour.reset(); // the user cancels
    act("click pickcolor");
    EXPECT_EQ(swatch(), Qt::red);
    EXPECT_EQ(user.saw, (QStringList{"#ffffff", "#ff0000"})); // white in place of black
}

TEST_F(Controls, DisabledButtonsGiveTheFocusOn) {
    act("click hvc_butt, press hvc_command F2");
    EXPECT_TRUE(find("thermal_command").hasFocus());
}

} // namespace cirrava
