#include "window_fixture.h"

#include "palette_files/palette_image.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QWheelEvent>

// What the random walk does not come to.
namespace cirrava {

namespace {

class Details : public WindowTest {
protected:
    // Drags with the mouse over a slider, a pixel at a time.
    static void drag(NumberBar& bar, int from, int to, const std::function<void()>& look) {
        QTest::mousePress(&bar, Qt::LeftButton, {}, {from, 8});
        for (int x = from + 1; x <= to; ++x) {
            QTest::mouseMove(&bar, {x, 8});
            look();
        }
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, {to, 8});
    }
};

Bytes cut(const Bytes& bytes, int size) {
    return {bytes.begin(), bytes.begin() + size};
}

} // namespace

TEST_F(Details, DamagedFilesAreToldAndLoadAsFarAsTheyGo) {
    const std::vector<Colour> grey(100, RGB(90, 90, 90));
    const Bytes thermal_file = row_image(std::vector<Colour>(320, RGB(1, 2, 3)));
    const Bytes hvc_file = hvc_image(grey, grey);
    Bytes unknown_compression = hvc_file;
    unknown_compression[30] = 99;
    const QString not_ours = "Not a Cirrava PAL file... It's probably corrupted";
    const struct {
        Bytes bytes;
        QString told;
        Colour thermal_99, hvc_99; // afterwards
    } files[]{
        {{'b', 'M'}, "Selected file is not a color palette", 0, 0},
        {cut(thermal_file, 2), not_ours, 0, 0},
        {row_image(grey), not_ours, 0, 0},
        {cut(thermal_file, 54 + 100 * 3), "", RGB(1, 2, 3), 0},
        {cut(hvc_file, 54 + 127 * 300 - 1), "Error # 62 Cannot Read File", RGB(1, 2, 3), 0},
        {cut(hvc_file, 54 + 127 * 300), "", RGB(1, 2, 3), RGB(88, 88, 88)},
        {unknown_compression, "Error # 481 Cannot Read File", RGB(1, 2, 3), RGB(88, 88, 88)},
    };
    for (const auto& [bytes, told, thermal_99, hvc_99] : files) {
        SCOPED_TRACE(bytes.size());
        user.path = folder.filePath(QString::number(bytes.size()) + told.left(9));
        BinaryFile file(user.path->toStdString(), FileAccess::read_write);
        file.write(bytes);
        file.close();
        user.heard.clear();
        press("Command5");
        EXPECT_EQ(user.heard.mid(1).join('\n'), told);
        EXPECT_EQ(thermal().colour(99), thermal_99);
        EXPECT_EQ(thermal().colour(100), 0);
        EXPECT_EQ(hvc().colour(99), hvc_99);
    }
    const QImage& picture = find<PictureBox>("Picture1").image();
    EXPECT_EQ(picture.pixel(50, 255 - 126), qRgb(88, 88, 88));
    EXPECT_EQ(picture.pixel(50, 255 - 127), qRgb(0, 0, 0)); // the rows that the file lacks
}

TEST_F(Details, ATooltipTellsTheTemperature) {
    const QPoint place = inside(sea(), 1);
    QHelpEvent rest(QEvent::ToolTip, place, sea().mapToGlobal(place));
    QCoreApplication::sendEvent(&sea(), &rest);
    EXPECT_EQ(QToolTip::text(), "(2) -9.8Celcius / 14.36Farenheit");
    QToolTip::hideText();
}

TEST_F(Details, SlidersFollowADragTheBrightnessActsAtItsEndAndKeepsTheFocus) {
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

TEST_F(Details, OneNotchOfTheWheelIsOneStepHoweverFineTheWheelCounts) {
    auto& red = find<NumberBar>("HScroll1");
    for (const int value : {0, 0, 1, 1}) {
        const QPointF place = red.rect().center();
        QWheelEvent turn(place, red.mapToGlobal(place), {}, {0, 50}, Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&red, &turn);
        EXPECT_EQ(red.value(), value);
    }
    EXPECT_EQ(red.accessibleDescription() + find<Swatch>("sample").accessibleDescription(),
              "1, 0, 0");
}

} // namespace cirrava
