#include "window_fixture.h"

#include <QDir>
#include <QHelpEvent>
#include <QToolTip>
#include <QWheelEvent>

// What the random walk does not look at.
namespace cirrava {

namespace {

class Details : public WindowTest {
protected:
    Details() { QDir::setCurrent(folder.path()); } // where the preview is made
    ~Details() override { QDir::setCurrent(before_); }

    NumberBar& brightness() { return find<NumberBar>("HScroll4"); }

    void colour_hvc_cell_0(int level) {
        for (const char* slider : {"HScroll1", "HScroll2", "HScroll3"})
            find<NumberBar>(slider).setValue(level);
        select(hvc(), 0, 0);
        press("Command2");
    }

private:
    QString before_ = QDir::currentPath();
};

} // namespace

TEST_F(Details, TicksAndTooltipsTellTheTemperatures) {
    EXPECT_EQ(caption("T1C(16)"), "49.5C/121.1F");
    EXPECT_EQ(caption("SS(13)"), "39.8C/103.64F");
    EXPECT_EQ(caption("hvc(5)"), "39C/102.2F");

    const QPoint place = middle_of(sea(), 1);
    QHelpEvent rest(QEvent::ToolTip, place, sea().mapToGlobal(place));
    QCoreApplication::sendEvent(&sea(), &rest);
    EXPECT_EQ(QToolTip::text(), "(2) -9.8Celcius / 14.36Farenheit");
    QToolTip::hideText();
}

TEST_F(Details, OfTwoOverlappingCellsTheHigherIsOnTop) {
    const QRect ninth = thermal().cell_box(9);
    QTest::mouseClick(&thermal(), Qt::LeftButton, {}, ninth.topLeft());
    EXPECT_EQ(box(1), "-105.5");
    QTest::mouseClick(&thermal(), Qt::LeftButton, {}, ninth.topLeft() - QPoint(1, 0));
    EXPECT_EQ(box(1), "-106.0");
    QTest::mouseClick(&thermal(), Qt::LeftButton, {}, thermal().cell_box(99).bottomRight());
    EXPECT_EQ(box(1), "-60.5");
}

TEST_F(Details, EnterPressesTheButtonThatHasTheFocus) {
    for (const char* button : {"color(12)", "Sea_butt"}) {
        find<Button>(button).setFocus();
        QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    }
    EXPECT_EQ(swatch(), QColor(255, 224, 192));
    EXPECT_EQ(caption("Label5"), "Sea");
}

TEST_F(Details, SwatchAndReadoutFollowTheThumbWhileItIsDragged) {
    auto& red = find<NumberBar>("HScroll1");
    const QPoint thumb = part(red, QStyle::SC_ScrollBarSlider).center();
    QTest::mousePress(&red, Qt::LeftButton, {}, thumb);
    for (int x = 10, last = 0; x <= 150; x += 70) {
        QTest::mouseMove(&red, thumb + QPoint(x, 0));
        EXPECT_GT(red.value(), last);
        last = red.value();
        EXPECT_EQ(swatch(), QColor(last, 0, 0));
        EXPECT_EQ(caption("Label15"), QString::number(last));
    }
    QTest::mouseRelease(&red, Qt::LeftButton, {}, thumb + QPoint(150, 0));
}

TEST_F(Details, TheBrightnessSliderActsOnceAtTheEndOfADragAndKeepsTheFocus) {
    colour_hvc_cell_0(100);
    const QPoint thumb = brightness().rect().center();
    QTest::mousePress(&brightness(), Qt::LeftButton, {}, thumb);
    for (int x = 1; x <= 60; ++x)
        QTest::mouseMove(&brightness(), thumb + QPoint(x, 0));
    EXPECT_EQ(hvc().colour(0), RGB(100, 100, 100));
    QTest::mouseRelease(&brightness(), Qt::LeftButton, {}, thumb + QPoint(60, 0));
    EXPECT_EQ(hvc().colour(0), RGB(121, 121, 121));

    brightness().setFocus();
    QTest::keyClick(&brightness(), Qt::Key_Left);
    EXPECT_EQ(hvc().colour(0), RGB(116, 116, 116));
    EXPECT_TRUE(brightness().hasFocus());
}

TEST_F(Details, OneNotchOfTheWheelIsOneStepHoweverFineTheWheelCounts) {
    colour_hvc_cell_0(100);
    for (const int eighths_of_a_degree : {-40, -40, -40}) {
        EXPECT_EQ(hvc().colour(0), RGB(100, 100, 100));
        const QPointF place = brightness().rect().center();
        QWheelEvent turn(place, brightness().mapToGlobal(place), {}, {0, eighths_of_a_degree},
                         Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&brightness(), &turn);
    }
    EXPECT_EQ(hvc().colour(0), RGB(95, 95, 95));
}

TEST_F(Details, EachFileDialogIsProposedANameInTheProgramsFolder) {
    const struct {
        const char* scale;
        const char* button;
        const char* title;
        const char* name;
    } actions[]{{"thermal_butt", "thermal_command", "Create Thermal", "thermal.bmp"},
                {"Sea_butt", "sea_command", "Create Sea Surface Palette", "sea.bmp"},
                {"hvc_butt", "hvc_command", "Create HVC Palette", "hvc.bmp"}};
    user.path = folder.filePath("other & <b>\"é\".bmp");
    for (const auto& action : actions) {
        press(action.scale);
        press(action.button);
        const FileQuestion& question = user.questions.back();
        EXPECT_EQ(question.title, action.title);
        EXPECT_EQ(question.name, action.name);
        EXPECT_EQ(question.filter, "*.bmp");
        EXPECT_EQ(question.folder, QCoreApplication::applicationDirPath());
        EXPECT_TRUE(QFile::exists(*user.path));
        EXPECT_TRUE(user.prompts.last().endsWith(" " + *user.path + "?"));
    }
}

} // namespace cirrava
