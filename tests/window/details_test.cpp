#include "window_fixture.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QToolTip>

// What the random walk does not come to.
namespace cirrava {

using Details = WindowTest;

TEST_F(Details, ScreenReadersHearAndWorkEveryCell) {
    select(thermal(), 30, 40);
    apply(12);
    auto* const cells = QAccessible::queryAccessibleInterface(&thermal());
    ASSERT_EQ(cells->childCount(), 320);
    auto* const cell = cells->child(30);
    EXPECT_EQ(cells->indexOfChild(cell), 30);
    EXPECT_EQ(cell->text(QAccessible::Name), "cell 31, -95.0 C, -139 F");
    EXPECT_EQ(cell->text(QAccessible::Description), "255, 224, 192");
    EXPECT_EQ(cell->rect().topLeft(), window.mapToGlobal(QPoint(248, 137)));
    apply(5);
    EXPECT_EQ(cells->child(29)->text(QAccessible::Description), "0, 0, 0");
    for (const char* action : {"mark as end", "mark as start", "an unknown one"})
        cell->actionInterface()->doAction(action);
    EXPECT_EQ(box(1) + box(2), "-95.0-95.0");
    press("color(9)");
    EXPECT_EQ(find<Swatch>("sample").accessibleDescription(), "255, 0, 0");
    cell->actionInterface()->doAction("copy colour");
    EXPECT_EQ(swatch(), Qt::black);
}

TEST_F(Details, ATooltipTellsTheTemperature) {
    const QPoint point = inside(sea(), 1);
    QHelpEvent rest(QEvent::ToolTip, point, sea().mapToGlobal(point));
    QCoreApplication::sendEvent(&sea(), &rest);
    EXPECT_EQ(QToolTip::text(), "(2) -9.8Celcius / 14.36Farenheit");
    QToolTip::hideText();
}

TEST_F(Details, SlidersFollowADragTheBrightnessActsAtItsEndAndKeepsTheFocus) {
    const auto drag = [](NumberBar& bar, int from, int to, const std::function<void()>& look) {
        QTest::mousePress(&bar, Qt::LeftButton, {}, {from, 8});
        for (int x = from + 1; x <= to; ++x) {
            QTest::mouseMove(&bar, {x, 8});
            look();
        }
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, {to, 8});
    };
    auto& red = find<NumberBar>("HScroll1");
    drag(red, 30, 180, [&] {
        EXPECT_EQ(swatch(), QColor(red.value(), 0, 0));
        EXPECT_EQ(caption("Label15"), QString::number(red.value()));
    });
    const int reached = red.value();
    QTest::mouseClick(&red, Qt::LeftButton, {}, {red.width() - 30, 8}); // its track
    EXPECT_EQ(red.value(), reached + 1);

    select(hvc(), 0, 0);
    apply(3);
    drag(brightness(), brightness().width() / 2, brightness().width() - 5,
         [this] { EXPECT_EQ(hvc().colour(0), RGB(128, 128, 128)); });
    EXPECT_EQ(hvc().colour(0), RGB(149, 149, 149));
    brightness().setFocus();
    QTest::keyClick(&brightness(), Qt::Key_Left);
    EXPECT_EQ(hvc().colour(0), RGB(144, 144, 144));
    EXPECT_TRUE(brightness().hasFocus());
}

} // namespace cirrava
