#include "window_fixture.h"

#include <QDir>
#include <QFile>
#include <QWheelEvent>

namespace cirrava {

namespace {

// With a current directory of its own, since the preview file is made there.
class Hvc : public WindowTest {
protected:
    Hvc() { QDir::setCurrent(folder.path()); }
    ~Hvc() override { QDir::setCurrent(before_); }

    NumberBar& brightness() { return find<NumberBar>("HScroll4"); }
    const QImage& picture() { return find<PictureBox>("Picture1").image(); }
    QRgb own_colour(int cell) { return picture().pixel(cell, 127) & RGB_MASK; }

    void colour_cells(int start, int end, int red, int green, int blue) {
        find<NumberBar>("HScroll1").setValue(red);
        find<NumberBar>("HScroll2").setValue(green);
        find<NumberBar>("HScroll3").setValue(blue);
        select(hvc(), start, end);
        press("Command2");
    }

    static void make_unwritable(const char* name) { QDir().mkdir(name); }

private:
    QString before_ = QDir::currentPath();
};

const char* const preview = "~~temphvc.bmp";
const char* const failure_75 = "Error # 75 A problem occured during file creation";

} // namespace

TEST_F(Hvc, ApplyWritesAndShowsThePreview) {
    EXPECT_FALSE(QFile::exists(preview));
    colour_cells(40, 59, 10, 20, 30);
    EXPECT_EQ(QFile(preview).size(), 76854);
    EXPECT_EQ(picture().size(), QSize(100, 256));
    EXPECT_EQ(own_colour(39), 0U);
    EXPECT_EQ(own_colour(40), qRgb(10, 20, 30) & RGB_MASK);
    EXPECT_EQ(hvc().colour(59), RGB(10, 20, 30));
}

TEST_F(Hvc, EachStepOfTheSliderShiftsOnceAndReturnsToTheMiddle) {
    colour_cells(10, 19, 100, 150, 200);
    brightness().setFocus();
    QTest::keyClick(&brightness(), Qt::Key_Left); // towards Darker
    EXPECT_EQ(hvc().colour(10), RGB(95, 145, 195));
    EXPECT_EQ(own_colour(10), qRgb(95, 145, 195) & RGB_MASK);
    EXPECT_EQ(brightness().value(), 5);
    EXPECT_TRUE(brightness().isEnabled());
    EXPECT_TRUE(brightness().hasFocus());

    QTest::keyClick(&brightness(), Qt::Key_Right);
    EXPECT_EQ(hvc().colour(19), RGB(100, 150, 200));
    EXPECT_EQ(hvc().colour(20), RGB(0, 0, 0));

    brightness().setValue(3); // two steps at once
    EXPECT_EQ(hvc().colour(10), RGB(91, 141, 191));
    const QPoint arrow(3, brightness().height() / 2);
    QTest::mouseClick(&brightness(), Qt::LeftButton, {}, arrow);
    EXPECT_EQ(hvc().colour(10), RGB(86, 136, 186));
}

TEST_F(Hvc, OneNotchOfTheWheelIsOneStepHoweverFineTheWheelCounts) {
    colour_cells(0, 0, 100, 100, 100);
    const auto turn = [this](int eighths_of_a_degree) {
        const QPointF place = brightness().rect().center();
        QWheelEvent event(place, brightness().mapToGlobal(place), {}, {0, eighths_of_a_degree},
                          Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&brightness(), &event);
    };
    turn(120);
    EXPECT_EQ(hvc().colour(0), RGB(105, 105, 105));
    turn(-40);
    turn(-40);
    EXPECT_EQ(hvc().colour(0), RGB(105, 105, 105));
    turn(-40);
    EXPECT_EQ(hvc().colour(0), RGB(100, 100, 100));
}

TEST_F(Hvc, ADragOfTheSliderCountsOnceAtItsEnd) {
    colour_cells(0, 0, 100, 100, 250);
    const QPoint thumb = brightness().rect().center();
    QTest::mousePress(&brightness(), Qt::LeftButton, {}, thumb);
    for (int x = 1; x <= 60; ++x)
        QTest::mouseMove(&brightness(), thumb + QPoint(x, 0));
    EXPECT_EQ(hvc().colour(0), RGB(100, 100, 250));
    QTest::mouseRelease(&brightness(), Qt::LeftButton, {}, thumb + QPoint(60, 0));
    EXPECT_EQ(hvc().colour(0), RGB(121, 121, 255));
    EXPECT_EQ(brightness().value(), 5);
}

TEST_F(Hvc, ResetLetsTheSliderShiftTheWholeScale) {
    press("hvc_butt");
    press("Command1");
    brightness().setValue(10);
    EXPECT_EQ(hvc().colour(0), RGB(21, 21, 21));
    EXPECT_EQ(hvc().colour(99), RGB(21, 21, 21));
}

TEST_F(Hvc, GenerateWritesAndShowsTheChosenFile) {
    colour_cells(5, 5, 1, 2, 3);
    user.path = folder.filePath("mine.bmp");
    press("hvc_command");
    EXPECT_EQ(user.questions.at(0).name, "hvc.bmp");
    EXPECT_EQ(user.questions.at(0).title, "Create HVC Palette");
    EXPECT_EQ(user.prompts, QStringList{"Write " + *user.path + "?"});
    EXPECT_EQ(QFile(*user.path).size(), 76854);
    EXPECT_EQ(own_colour(5), qRgb(1, 2, 3) & RGB_MASK);
    EXPECT_EQ(hvc().colour(5), RGB(1, 2, 3));
}

TEST_F(Hvc, GenerateWithoutAFileKeepsThePictureOrShowsTheLastOne) {
    press("hvc_butt");
    press("hvc_command"); // cancelled before any other file action
    EXPECT_EQ(user.told, QStringList{"Operation Cancelled"});
    EXPECT_TRUE(picture().isNull());

    colour_cells(0, 99, 50, 50, 50);
    user.yes = false;
    user.path = folder.filePath("not written.bmp");
    press("hvc_command");
    EXPECT_EQ(own_colour(0), qRgb(50, 50, 50) & RGB_MASK);
    user.yes = true;
    user.path = folder.path();
    press("hvc_command");
    EXPECT_EQ(user.told.last(), failure_75);
    EXPECT_EQ(own_colour(0), qRgb(50, 50, 50) & RGB_MASK);
}

TEST_F(Hvc, AFailedPreviewIsToldAndKeepsCellsAndPicture) {
    make_unwritable(preview);
    colour_cells(0, 9, 50, 50, 50);
    EXPECT_EQ(user.told, QStringList{failure_75});
    EXPECT_EQ(hvc().colour(9), RGB(50, 50, 50));
    EXPECT_TRUE(picture().isNull());

    brightness().setValue(6); // neither the shift nor the preview can be written
    EXPECT_EQ(user.told.size(), 3);
    EXPECT_EQ(hvc().colour(9), RGB(50, 50, 50));
    EXPECT_EQ(brightness().value(), 5);
    EXPECT_TRUE(brightness().isEnabled());
}

TEST_F(Hvc, TheColourDialogSetsTheCurrentColour) {
    press("pickcolor"); // cancelled
    EXPECT_TRUE(user.told.isEmpty());
    EXPECT_EQ(swatch(), QColor(0, 0, 0));
    user.colour = QColor(255, 128, 1);
    press("pickcolor");
    EXPECT_EQ(swatch(), QColor(255, 128, 1));
    EXPECT_EQ(caption("Label16"), "128");
}

} // namespace cirrava
