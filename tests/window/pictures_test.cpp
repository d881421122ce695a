#include "approved_picture.h"
#include "window_fixture.h"

namespace cirrava {

using Pictures = WindowTest; // of the main window; those of others are in their tests

TEST_F(Pictures, Start) {
    expect_as_approved(window, "start");
}

TEST_F(Pictures, ColouredScaleWithStartBehindEndAndHeldButtons) {
    paint("thermal_char", 0, 149, 14);
    paint("thermal_char", 150, 319, 19);
    act("left thermal_char 250, right thermal_char 130");
    const QPoint arrow = find("HScroll2").rect().bottomRight() - QPoint(4, 8);
    mouse(QTest::MousePress, find("HScroll2"), arrow);
    act("down Command5");
    expect_as_approved(window, "thermal");
}

TEST_F(Pictures, HvcWithStartDotsPreviewAndKeyboardFocus) {
    act("left thermal_char 20, right thermal_char 90"); // which no longer shows on another scale
    paint("Label3", 0, 59, 3);
    paint("Label3", 40, 79, 26);
    act("click Command1, left Label3 58, press HScroll3 Tab");
    expect_as_approved(window, "hvc");
}

} // namespace cirrava
