#include "window_fixture.h"

namespace cirrava {

namespace {

class ColourChoice : public WindowTest {
protected:
    QStringList readouts() { return {caption("Label15"), caption("Label16"), caption("Label17")}; }
};

const char* const refusal = "Choose a range by left clicking for start and right clicking for end";

} // namespace

TEST_F(ColourChoice, APresetMovesSwatchSlidersAndReadouts) {
    EXPECT_EQ(readouts(), (QStringList{"0", "0", "0"}));
    press("color(12)");
    EXPECT_EQ(swatch(), QColor(255, 224, 192));
    EXPECT_EQ(readouts(), (QStringList{"255", "224", "192"}));
    EXPECT_EQ(find<NumberBar>("HScroll3").value(), 192);

    // The colour goes with the button, not with its place among the swapped neighbours.
    press("color(8)");
    EXPECT_EQ(swatch(), QColor(192, 0, 0));
    press("color(9)");
    EXPECT_EQ(swatch(), QColor(255, 0, 0));
    EXPECT_LT(find<Button>("color(9)").x(), find<Button>("color(8)").x());
}

TEST_F(ColourChoice, EnterPressesTheButtonThatHasTheFocus) {
    const auto press_by_enter = [this](const char* button) {
        find<Button>(button).setFocus();
        QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    };
    press_by_enter("color(12)");
    EXPECT_EQ(swatch(), QColor(255, 224, 192));
    press_by_enter("Sea_butt");
    EXPECT_EQ(caption("Label5"), "Sea");
    press_by_enter("Command2");
    EXPECT_EQ(user.told, QStringList{refusal});
}

TEST_F(ColourChoice, ArrowsAndTrackOfASliderMoveItByOne) {
    auto& green = find<NumberBar>("HScroll2");
    QTest::mouseClick(&green, Qt::LeftButton, {},
                      part(green, QStyle::SC_ScrollBarAddLine).center());
    EXPECT_EQ(green.value(), 1);
    QTest::mouseClick(&green, Qt::LeftButton, {},
                      part(green, QStyle::SC_ScrollBarAddPage).center());
    EXPECT_EQ(green.value(), 2);
    QTest::mouseClick(&green, Qt::MiddleButton, {},
                      part(green, QStyle::SC_ScrollBarAddPage).center());
    EXPECT_EQ(green.value(), 2);
    QTest::keyClick(&green, Qt::Key_PageDown);
    QTest::mouseClick(&green, Qt::LeftButton, {},
                      part(green, QStyle::SC_ScrollBarSubLine).center());
    EXPECT_EQ(green.value(), 0);
    QTest::keyClick(&green, Qt::Key_Right);
    EXPECT_EQ(readouts(), (QStringList{"0", "1", "0"}));
    EXPECT_EQ(swatch(), QColor(0, 1, 0));
}

TEST_F(ColourChoice, SwatchAndReadoutFollowTheThumbWhileItIsDragged) {
    auto& red = find<NumberBar>("HScroll1");
    const QPoint thumb = part(red, QStyle::SC_ScrollBarSlider).center();
    QTest::mousePress(&red, Qt::LeftButton, {}, thumb);
    int last = 0;
    for (int x = 10; x <= 150; x += 70) {
        QTest::mouseMove(&red, thumb + QPoint(x, 0));
        EXPECT_GT(red.value(), last);
        last = red.value();
        EXPECT_EQ(swatch(), QColor(last, 0, 0));
        EXPECT_EQ(readouts(), (QStringList{QString::number(last), "0", "0"}));
    }
    QTest::mouseRelease(&red, Qt::LeftButton, {}, thumb + QPoint(150, 0));
    EXPECT_EQ(red.value(), last);
}

TEST_F(ColourChoice, ApplyColoursTheRangeOfTheWorkingScaleOnly) {
    select(thermal(), 0, 319);
    apply("color(0)");
    for (const Colour colour : thermal().colours())
        EXPECT_EQ(colour, RGB(255, 255, 255));
    EXPECT_EQ(sea().colour(0), RGB(0, 0, 0));

    select(sea(), 100, 100);
    apply("color(9)");
    EXPECT_EQ(sea().colour(99), RGB(0, 0, 0));
    EXPECT_EQ(sea().colour(100), RGB(255, 0, 0));
    EXPECT_EQ(sea().colour(101), RGB(0, 0, 0));
    EXPECT_TRUE(user.told.isEmpty());
}

TEST_F(ColourChoice, ApplyRefusesWhatIsNoRange) {
    apply("color(0)"); // nothing chosen yet
    EXPECT_EQ(user.told, QStringList{refusal});
    select(thermal(), 30, 10);
    press("Command2");
    EXPECT_EQ(user.told.size(), 2);
    click(sea(), 5);
    press("Command2");
    EXPECT_EQ(user.told.size(), 3);
    select(hvc(), 0, 99);
    press("Command1");
    press("Command2");
    EXPECT_EQ(user.told.size(), 4);
    for (CellArray* cells : {&thermal(), &sea(), &hvc()})
        for (const Colour colour : cells->colours())
            EXPECT_EQ(colour, RGB(0, 0, 0));
}

TEST_F(ColourChoice, ADoubleClickWithAnyButtonCopiesTheColourAndCountsAsClicks) {
    select(sea(), 3, 3);
    apply("color(13)");
    press("color(0)");
    click(thermal(), 7);
    for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        press("color(0)");
        click(sea(), 3, button);
        QTest::mouseDClick(&sea(), button, {}, middle_of(sea(), 3));
        QTest::mouseRelease(&sea(), button, {}, middle_of(sea(), 3));
        EXPECT_EQ(swatch(), QColor(255, 192, 128));
        EXPECT_EQ(readouts(), (QStringList{"255", "192", "128"}));
        EXPECT_EQ(box(button == Qt::LeftButton ? 1 : 2), "-9.4");
    }
}

} // namespace cirrava
