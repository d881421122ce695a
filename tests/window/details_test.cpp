#include "window_fixture.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>

// What the random walk does not come to.
namespace cirrava {

using Details = WindowTest;

TEST_F(Details, ScreenReadersHearAndWorkEveryCell) {
    select(thermal(), 30, 40);
    apply(12);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&window)->role(), QAccessible::Window);
    auto* const cells = QAccessible::queryAccessibleInterface(&thermal());
    auto* const cell = cells->child(35);
    EXPECT_EQ(cell->text(QAccessible::Name), "cell 36, -92.5 C, -134.5 F");
    EXPECT_EQ(cell->text(QAccessible::Description), "red 255, green 224, blue 192");
    EXPECT_EQ(cell->rect(), QRect(window.mapToGlobal(QPoint(288, 137)), QSize(8, 15)));
    apply(5);
    press("color(9)");
    EXPECT_EQ(find<Swatch>("sample").accessibleDescription(), "red 255, green 0, blue 0");
    for (const QString& action : cell->actionInterface()->actionNames())
        cell->actionInterface()->doAction(action);
    cells->child(29)->actionInterface()->doAction("an unknown one");
    EXPECT_EQ(box(1) + box(2), "-92.5-92.5");
    EXPECT_EQ(swatch(), Qt::black);
}

TEST_F(Details, EnterThatIsHeldPressesNothing) {
    const auto press_enter = [this](QEvent::Type type, quint64 instant, bool repeat = false) {
        QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier, "\r", repeat);
        event.setTimestamp(instant);
        QCoreApplication::sendEvent(window.windowHandle(), &event);
    };
    find<Button>("color(9)").setFocus();
    press_enter(QEvent::KeyPress, 1);
    find<Button>("color(3)").setFocus();
    press_enter(QEvent::KeyPress, 2, true);
    press_enter(QEvent::KeyRelease, 3);
    press_enter(QEvent::KeyPress, 3);
    EXPECT_EQ(swatch(), Qt::red);
}

TEST_F(Details, ANewWorkingScaleTakesTheFocusOfTheLastOneAndSaysWhatItIs) {
    find<Button>("thermal_command").setFocus();
    QTest::keySequence(&window, Qt::CTRL | Qt::Key_3);
    EXPECT_TRUE(find<Button>("hvc_command").hasFocus());
    EXPECT_EQ(find<Button>("hvc_butt").accessibleDescription(), "working scale");
    EXPECT_EQ(find<Button>("thermal_butt").accessibleDescription(), "");
}

TEST_F(Details, ATooltipTellsTheTemperature) {
    const QPoint point = inside(sea(), 1);
    QHelpEvent rest(QEvent::ToolTip, point, sea().mapToGlobal(point));
    QCoreApplication::sendEvent(&sea(), &rest);
    EXPECT_EQ(QToolTip::text(), "(2) -9.8Celcius / 14.36Farenheit");
}

TEST_F(Details, TheBrightnessActsAtTheEndOfADragAndKeepsTheFocus) {
    select(hvc(), 0, 0);
    apply(3);
    NumberBar& bar = brightness();
    QTest::mousePress(&bar, Qt::LeftButton, {}, {bar.width() / 2, 8});
    for (int x = bar.width() / 2; x < bar.width(); ++x) {
        QTest::mouseMove(&bar, {x, 8});
        EXPECT_EQ(hvc().colour(0), RGB(128, 128, 128));
    }
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, {bar.width(), 8});
    EXPECT_TRUE(find<NumberBar>("HScroll1").hasTracking()); // a colour follows each pixel
    EXPECT_EQ(hvc().colour(0), RGB(149, 149, 149));
    bar.setFocus();
    QTest::keyClick(&bar, Qt::Key_Left);
    EXPECT_EQ(hvc().colour(0), RGB(144, 144, 144));
    EXPECT_TRUE(bar.hasFocus());
    QTest::mouseClick(&bar, Qt::LeftButton, {}, {bar.width() - 30, 8}); // its track
    EXPECT_EQ(hvc().colour(0), RGB(149, 149, 149));
}

} // namespace cirrava
