#include "window_fixture.h"

#include <QHelpEvent>
#include <QToolTip>

namespace cirrava {

namespace {

const QString blank = " ";

class Range : public WindowTest {
protected:
    // The controls that follow the working scale.
    QString presentation() {
        QStringList on;
        for (const char* control :
             {"thermal_command", "sea_command", "hvc_command", "Command1", "HScroll4"})
            if (enabled(control))
                on << control;
        for (const char* button : {"thermal_butt", "Sea_butt", "hvc_butt"})
            if (find<Button>(button).face() == QColor(0, 255, 0))
                on << button;
        return caption("Label5") + ": " + on.join(' ');
    }
};

const char* const on_thermal = "Thermal: thermal_command thermal_butt";
const char* const on_sea = "Sea: sea_command Sea_butt";
const char* const on_hvc = "HVC: hvc_command Command1 HScroll4 hvc_butt";

} // namespace

TEST_F(Range, IsEmptyAtTheStartAndEverythingBlack) {
    EXPECT_EQ(presentation(), on_thermal);
    EXPECT_EQ(boxes(), (QStringList{"", "", "", ""}));
    for (CellArray* cells : {&thermal(), &sea(), &hvc()})
        for (const Colour colour : cells->colours())
            EXPECT_EQ(colour, RGB(0, 0, 0));
    EXPECT_EQ(find<NumberBar>("HScroll4").value(), 5);
    EXPECT_TRUE(find<PictureBox>("Picture1").image().isNull());
    EXPECT_EQ(caption("T1C(16)"), "49.5C/121.1F");
    EXPECT_EQ(caption("SS(13)"), "39.8C/103.64F");
    EXPECT_EQ(caption("hvc(5)"), "39C/102.2F");
}

TEST_F(Range, LeftClickMarksTheStartEveryOtherButtonTheEnd) {
    click(thermal(), 10);
    EXPECT_EQ(boxes(), (QStringList{"-105.0", blank, "-157", blank}));
    click(thermal(), 30, Qt::RightButton);
    EXPECT_EQ(boxes(), (QStringList{"-105.0", "-95.0", "-157", "-139"}));
    click(thermal(), 219, Qt::MiddleButton);
    EXPECT_EQ(boxes(), (QStringList{"-105.0", "-0.5", "-157", "31.1"}));
    click(thermal(), 220); // a start after the end stays as it is
    EXPECT_EQ(boxes(), (QStringList{"0.0", "-0.5", "32", "31.1"}));
}

TEST_F(Range, AClickOnAnotherScaleBlanksTheOppositeEnd) {
    select(thermal(), 10, 30);
    click(sea(), 1, Qt::RightButton);
    EXPECT_EQ(presentation(), on_sea);
    EXPECT_EQ(boxes(), (QStringList{blank, "-9.8", blank, "14.36"}));
    click(hvc(), 60);
    EXPECT_EQ(presentation(), on_hvc);
    EXPECT_EQ(boxes(), (QStringList{"0", blank, "32", blank}));
}

TEST_F(Range, ScaleButtonsBlankTheBoxesOnlyWhenTheScaleChanges) {
    select(thermal(), 10, 30);
    const QStringList before = boxes();
    press("thermal_butt");
    EXPECT_EQ(boxes(), before);
    press("hvc_butt");
    EXPECT_EQ(presentation(), on_hvc);
    EXPECT_EQ(boxes(), (QStringList{blank, blank, blank, blank}));
    press("Sea_butt");
    EXPECT_EQ(presentation(), on_sea);
    press("thermal_butt");
    EXPECT_EQ(presentation(), on_thermal);
    click(thermal(),
          10); // still the last scale clicked: the end is not blanked again, nor restored
    EXPECT_EQ(boxes(), (QStringList{"-105.0", blank, "-157", blank}));
}

TEST_F(Range, ResetBlanksTheBoxes) {
    select(hvc(), 40, 59);
    press("Command1");
    EXPECT_EQ(boxes(), (QStringList{blank, blank, blank, blank}));
    EXPECT_EQ(presentation(), on_hvc);
}

TEST_F(Range, TheCellUnderThePointerAtTheReleaseCounts) {
    QTest::mousePress(&thermal(), Qt::LeftButton, {}, middle_of(thermal(), 5));
    QTest::mouseRelease(&thermal(), Qt::LeftButton, {}, middle_of(thermal(), 215));
    EXPECT_EQ(box(1), "-2.5");

    QTest::mousePress(&thermal(), Qt::LeftButton, {}, middle_of(thermal(), 5));
    QTest::mouseRelease(&thermal(), Qt::LeftButton, {},
                        thermal().mapFrom(&window, sea().mapToParent(middle_of(sea(), 1))));
    EXPECT_EQ(box(1), "-9.8");
    EXPECT_EQ(presentation(), on_sea);

    const QStringList before = boxes();
    const QPoint between_rows = middle_of(thermal(), 0) + QPoint(0, 20);
    const QPoint after_last = middle_of(thermal(), 319) + QPoint(30, 0);
    const QPoint outside{-10, -200};
    for (const QPoint place : {between_rows, after_last, outside}) {
        QTest::mousePress(&thermal(), Qt::LeftButton, {}, middle_of(thermal(), 5));
        QTest::mouseRelease(&thermal(), Qt::LeftButton, {}, place);
        EXPECT_EQ(boxes(), before);
    }
}

TEST_F(Range, OfTwoOverlappingCellsTheHigherIsOnTop) {
    const QRect ninth = thermal().cell_box(9);
    QTest::mouseClick(&thermal(), Qt::LeftButton, {}, ninth.topLeft());
    EXPECT_EQ(box(1), "-105.5");
    QTest::mouseClick(&thermal(), Qt::LeftButton, {}, ninth.topLeft() - QPoint(1, 0));
    EXPECT_EQ(box(1), "-106.0");
    QTest::mouseClick(&thermal(), Qt::LeftButton, {}, thermal().cell_box(99).bottomRight());
    EXPECT_EQ(box(1), "-60.5");
}

TEST_F(Range, ACellShowsItsTemperatureAsTooltip) {
    const QPoint place = middle_of(sea(), 1);
    QHelpEvent rest(QEvent::ToolTip, place, sea().mapToGlobal(place));
    QCoreApplication::sendEvent(&sea(), &rest);
    EXPECT_EQ(QToolTip::text(), "(2) -9.8Celcius / 14.36Farenheit");
    QToolTip::hideText();
}

} // namespace cirrava
