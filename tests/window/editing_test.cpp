#include "window_fixture.h"

#include "scale_editor/qt_values.h"

#include <random>

namespace cirrava {

namespace {

// Of a table: what the user does, and what is to be seen then.
QList<QStringList> steps_of(const QString& table) {
    QList<QStringList> steps;
    QFile file(QString(TABLES "/%1.txt").arg(table));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.size() > 0) << qPrintable(table);
    for (const QString& line : QString(file.readAll()).split('\n', Qt::SkipEmptyParts))
        if (!line.startsWith('#'))
            steps << line.split(QRegularExpression(" +-> "));
    return steps;
}

class Editing : public WindowTest {
protected:
    QString boxes() {
        QStringList shown{text("Text1"), text("Text2"), text("Text3"), text("Text4")};
        return shown.replaceInStrings(" ", "_").join(' ');
    }

    QString colours() {
        QStringList shown;
        for (const CellArray* cells : {&thermal(), &sea(), &hvc()})
            for (int cell = 0; cell < cells->colours().size(); ++cell)
                if (cells->colour(cell) != (cell > 0 ? cells->colour(cell - 1) : 0))
                    shown << QString("%1 %2 ").arg(cells->objectName()).arg(cell) +
                                 to_qt(cells->colour(cell)).name();
        return (shown << "sample " + swatch().name()).join(", ");
    }

    // Does each step of a table, after which that is shown and the controls agree.
    void expect_each(const QString& table, const std::function<QString()>& shown) {
        for (const QStringList& step : steps_of(table)) {
            act(step[0]);
            EXPECT_EQ(shown(), step[1]) << qPrintable(step[0]);
            expect_controls_agree();
        }
    }

    // Whatever was done before.
    void expect_controls_agree() {
        const auto working = QStringList{"Thermal", "Sea", "HVC"}.indexOf(text("Label5"));
        const QList<int> channels{swatch().red(), swatch().green(), swatch().blue()};
        for (const int i : {0, 1, 2}) { // of scales and channels
            const QString scale = QStringList{"thermal", "Sea", "hvc"}[i];
            SCOPED_TRACE(i);
            ASSERT_EQ(find<Button>(scale + "_butt").face() == QColor(Qt::green), working == i);
            ASSERT_EQ(find(scale.toLower() + "_command").isEnabled(), working == i);
            ASSERT_EQ(find<Slider>(QString("HScroll%1").arg(1 + i)).value(), channels[i]);
            ASSERT_EQ(text(QString("Label%1").arg(15 + i)), QString::number(channels[i]));
        }
        ASSERT_EQ(find("Command1").isEnabled(), working == 2);
        ASSERT_EQ(brightness().isEnabled(), working == 2);
        ASSERT_EQ(brightness().sliderPosition(), 5);
        for (int x = 0; x < preview().width(); ++x) // once there is one
            ASSERT_EQ(preview().pixelColor(x, 127), to_qt(hvc().colour(x)));
    }
};

} // namespace

TEST_F(Editing, ClicksAndKeysMarkTheRange) {
    expect_each("marking", [this] { return boxes(); });
}

TEST_F(Editing, APressThatAWindowInterruptsDoesNotCountLater) {
    act("down Label2 5");
    in_window_of("press Text1 F1", [](QDialog& help) { mouse(QTest::MouseRelease, help, {9, 9}); });
    act("down Label2 9 below, up Label2 7"); // beside all cells, which counts while another is held
    EXPECT_EQ(text("Label5"), "Thermal");
}

TEST_F(Editing, ADoubleClickCopiesOnlyWithBothHalvesAndTheLeftButton) {
    act("click color(9)");
    // Qt makes a double click of two quick presses, even if the first one closed a window.
    mouse_at(sea().mapTo(&window, place_of(sea(), 5)), {QEvent::MouseButtonDblClick});
    mouse(QTest::MouseDClick, thermal(), place_of(thermal(), 5), Qt::RightButton);
    EXPECT_EQ(swatch(), Qt::red);
    mouse_at(find("color(10)").geometry().center(), {QEvent::MouseButtonDblClick});
    EXPECT_TRUE(find<Button>("color(10)").isDown()); // for which it is a press
}

TEST_F(Editing, ColoursTheRangeAndTakesThatBack) {
    expect_each("colouring", [this] { return colours(); });
    EXPECT_EQ(user.saw.filter("by left clicking for start and right clicking for end").size(), 2);
    EXPECT_FALSE(QFile::exists("~~temphvc.bmp")); // nothing was done on HVC
}

TEST_F(Editing, ShiftsTheBrightnessOfHvcCells) {
    expect_each("brightening", [this] { return colours(); });
    brightness().setFocus();
    for (int time = 0; time < 20; ++time)
        press(Qt::Key_Right); // after which the slider has the focus again
    EXPECT_EQ(colours(), "Label3 0 #646464, sample #000000");
    for (int time = 0; time < 20; ++time)
        press(QKeySequence::Undo);
    EXPECT_EQ(colours(), "sample #000000");
}

TEST_F(Editing, ADragOfTheBrightnessCountsAtItsEnd) {
    act("press Text1 F4, click Command1");
    const auto drag = [this](const std::function<void()>& meanwhile) {
        const QPoint half_way = brightness().rect().center() + QPoint(20, 0);
        act("down HScroll4");
        mouse(QTest::MouseMove, brightness(), half_way);
        EXPECT_EQ(hvc().colour(0), 0);
        meanwhile();
        mouse(QTest::MouseMove, brightness(), brightness().rect().topRight());
        mouse(QTest::MouseRelease, brightness(), brightness().rect().topRight());
        return colours();
    };
    EXPECT_EQ(drag([this] { act("press Text1 F2, press Text1 F4"); }), "sample #000000");
    EXPECT_EQ(drag([this] { in_window_of("press Text1 F1", [](QDialog&) {}); }), "sample #000000");
    EXPECT_EQ(drag([this] { act("press Text1 Tab"); }), "Label3 0 #151515, sample #000000");
}

// CIRRAVA_WALK_SEED walks another one.
TEST_F(Editing, ARandomWalkLeavesTheWindowInOrder) {
    std::mt19937 random(qEnvironmentVariable("CIRRAVA_WALK_SEED", "1").toUInt());
    const auto steps = steps_of("marking") + steps_of("colouring") + steps_of("brightening");
    std::uniform_int_distribution<qsizetype> any(0, steps.size() - 1);
    for (int number = 0; number < 3'000; ++number) {
        const QString& step = steps[any(random)][0];
        SCOPED_TRACE(step.toStdString());
        act(step);
        ASSERT_NO_FATAL_FAILURE(expect_controls_agree());
    }
}

} // namespace cirrava
