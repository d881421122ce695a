#include "window_fixture.h"

#include <QAccessible>
#include <QScreen>

namespace cirrava {

namespace {

class Layout : public WindowTest {
protected:
    // By its caption or its name.
    QWidget& control(const QString& what) {
        for (auto* other : window.findChildren<QWidget*>())
            if (other->property("text") == what)
                return *other;
        return find(what);
    }
    QRect place(const QString& what) { return control(what).geometry(); }

    // Of controls, each right of the one before it, or below it, and in line with its edge or its
    // middle.
    void expect_line(const QString& controls, bool down = false) {
        QRect last;
        for (const QString& control : controls.split(", ")) {
            SCOPED_TRACE(control.toStdString());
            const QRect here = place(control);
            const QPoint gap = here.topLeft() - last.bottomRight();
            const QPoint edge = here.topLeft() - last.topLeft();
            const QPoint middle = here.center() - last.center();
            const int off = down ? qMin(qAbs(edge.x()), qAbs(middle.x()))
                                 : qMin(qAbs(edge.y()), qAbs(middle.y()));
            EXPECT_TRUE(window.rect().contains(here));
            EXPECT_TRUE(last.isNull() || ((down ? gap.y() : gap.x()) > -2 && off < 7));
            last = here;
        }
    }

    QColor colour_at(QPointF point) {
        const QImage image = window.grab().toImage();
        const QPointF pixel = point * image.devicePixelRatio();
        return image.pixelColor(qFloor(pixel.x()), qFloor(pixel.y()));
    }

    void click_at(QPointF point) {
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, point, window.mapToGlobal(point), Qt::LeftButton,
                              Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(window.windowHandle(), &event);
        }
    }
};

} // namespace

TEST_F(Layout, CaptionsFitTheirBoxes) {
    find<QLabel>("Label15").setText("255");
    for (const auto* control : window.findChildren<QWidget*>()) {
        const QString caption = control->property("text").toString().trimmed();
        const auto* button = qobject_cast<const Button*>(control);
        const QRect box = button != nullptr ? button->caption_box() : control->contentsRect();
        const QFontMetrics metrics = control->fontMetrics();
        const QRect needed = metrics.boundingRect(box, Qt::TextWordWrap, caption);
        EXPECT_LE(needed.width(), box.width() + 1) << caption.toStdString();
        // The last line may stand out by the empty part below its letters.
        EXPECT_TRUE(caption.isEmpty() || needed.height() <= box.height() + metrics.descent())
            << caption.toStdString();
    }
}

TEST_F(Layout, ControlsStandInLine) {
    for (const char* row :
         {"Image1, Cirrava PAL",
          "-110C to 49.5C in 0.5C Intervals , Generate Thermal Palette, HVC Palette ",
          "Sea Surface, -10 to 39.8 in 0.2C Intervals, Generate Sea Surface Palette",
          "HVC, -60 to 39 in 1C intervals, Click here for more info, Generate HVC Palette",
          "Generate HVC Palette, Darker, HScroll4, Lighter", "Now Working, Label5, color(0)",
          "Start, Text1, Label8, End, Text2, Label9, Red, HScroll1, Label15",
          "Text3, Label10, Text4, Label11, Green, HScroll2, Label16",
          "Reset, Blue, HScroll3, Label17", "Advanced Color Picker, sample, Apply Color",
          "About, How to Use, Load From File, Quit"})
        expect_line(row);
    for (const char* column :
         {"Text1, Text3", "Text2, Text4", "Label8, Label10", "Label9, Label11",
          "HVC Brightness, HScroll4", "HScroll1, HScroll2, HScroll3", "Label15, Label16, Label17",
          "Label22, Label24, Label25", "Label23, Label26", "thermal_butt, thermal_char, Sea_butt"})
        expect_line(column, true);
    EXPECT_EQ(text("Label8") + text("Label9") + text("Label10") + text("Label11"), "CCFF");
    EXPECT_EQ(place("thermal_butt").top(), place("Image1").bottom() + 1);
}

TEST_F(Layout, TemperaturesStandUnderTheirCells) {
    const std::tuple<const char*, CellArray&, int, double, double> scales[]{
        {"T1C", thermal(), 17, 0.5, -110}, {"SS", sea(), 14, 0.2, -10}, {"hvc", hvc(), 6, 1, -60}};
    for (const auto& [name, cells, count, step, first] : scales)
        for (int i = 0; i < count; ++i) {
            const auto& label = find<QLabel>(QString("%1(%2)").arg(name).arg(i));
            const int cell = std::min(20 * i, cell_count(cells.kind()) - 1);
            const QRect box = cells.cell_box(cell).translated(cells.pos());
            const double celsius = cell * step + first;
            EXPECT_EQ(label.text(), QString("%1C/%2F").arg(celsius).arg(celsius * 1.8 + 32));
            EXPECT_NEAR(label.x(), box.x(), box.width() / 2.0 + 1) << label.text().toStdString();
            EXPECT_NEAR(label.y(), box.bottom(), 1) << label.text().toStdString();
        }
}

TEST_F(Layout, PresetsGoFromLightToDarkInEightGroups) {
    const QString colours =
        "ffffff e0e0e0 c0c0c0 808080 404040 000000  ffc0c0 ff8080 ff0000 c00000 800000 400000  "
        "ffe0c0 ffc080 ff8000 c04000 804000 804040  ffffc0 ffff80 ffff00 c0c000 808000 404000  "
        "c0ffc0 80ff80 00ff00 00c000 008000 004000  c0ffff 80ffff 00ffff 00c0c0 008080 004040  "
        "c0c0ff 8080ff 0000ff 0000c0 000080 000040  ffc0ff ff80ff ff00ff c000c0 800080 400040";
    QPointF middle = place("color(0)").center();
    for (const QString& colour : colours.split(' ', Qt::SkipEmptyParts)) {
        click_at(middle);
        EXPECT_EQ(swatch().name(), '#' + colour);
        middle.rx() += (place("color(47)").x() - place("color(0)").x()) / 47.;
    }
}

TEST_F(Layout, TabGoesThroughAllControlsInOrder) {
    QStringList order = QString("Text1 Text2 Text3 Text4 HScroll1 HScroll2 HScroll3 sample "
                                "Command2 Command3 Command4 Command5 Command6 thermal_command "
                                "sea_command hvc_command pickcolor hvc_help Picture1 HScroll4 "
                                "Command1 thermal_butt Sea_butt hvc_butt Text1")
                            .split(' ');
    for (int i = 0; i < 48; ++i)
        order.insert(16 + i, QString("color(%1)").arg(i));
    for (auto* control : window.findChildren<QWidget*>())
        control->setEnabled(true);
    QStringList spoken;
    for (const QString& name : order) {
        EXPECT_EQ(window.focusWidget()->objectName(), name);
        const auto* control = QAccessible::queryAccessibleInterface(window.focusWidget());
        spoken << control->text(QAccessible::Name) + control->text(QAccessible::Description);
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(spoken[0] + spoken[4], "Start, degrees CelsiusblankRed");
    EXPECT_EQ(spoken[14], "Generate Sea Surface PaletteCtrl+S");
    EXPECT_EQ(spoken[8], "Apply ColorClick to apply color to range selected");
    EXPECT_EQ(spoken[16], "Preset 1: red 255, green 255, blue 255255, 255, 255");
    EXPECT_EQ(spoken.removeDuplicates(), 1); // the first, come round
}

TEST_F(Layout, EachPixelOfTheScreenBelongsToTheCellThatItShows) {
    paint("thermal_char", 1, 1, 9);
    const QRectF red = thermal().strip(1).translated(thermal().pos());
    const double pixel = 1 / window.devicePixelRatioF();
    // From 4 pixels before to 4 behind, which are whole device pixels at every quarter.
    for (int i = 0; i * pixel < red.width() + 8; ++i) {
        const double x = red.left() - 4 + (i + 0.5) * pixel;
        const bool within = x > red.left() && x < red.right();
        EXPECT_EQ(colour_at({x, red.top() + 5.5}), within ? Qt::red : Qt::black) << x;
        click_at({x, red.top() + 5.5});
        EXPECT_EQ(text("Text1"), within ? "-109.5" : x < red.left() ? "-110.0" : "-109.0") << x;
    }
}

TEST_F(Layout, CellsLieOverArrowsAndUnderButtons) {
    click_at(thermal().pos() + thermal().cell_box(99).topRight() + QPoint(0, 8));
    EXPECT_EQ(text("Text1"), "-60.5");
    for (const char* button : {"thermal_command", "Sea_butt", "sea_command", "hvc_butt"})
        click_at(find(button).geometry().bottomLeft() + QPoint(50, 0));
    EXPECT_EQ(user.saw.filter("Create").size(), 2);
    EXPECT_EQ(text("Label5") + text("Text1"), "HVC ");
}

TEST_F(Layout, LinesUnderCellsShowWhatIsMarkedAndWhatTheBrightnessChanges) {
    // Below each of the cells 19 to 22: nothing, dots, or a line.
    const auto lines_of = [this](CellArray& cells) {
        QString lines;
        for (int cell = 19; cell <= 22; ++cell) {
            const QRectF strip = cells.strip(cell).translated(cells.pos());
            int blue = 0;
            for (int x = 0; x < strip.width(); ++x)
                blue += colour_at(strip.bottomLeft() + QPointF(x + .5, 2.5)) == QColor(0, 95, 184);
            lines += blue == 0 ? ' ' : blue < strip.width() ? ':' : '-';
        }
        return lines;
    };
    act("left thermal_char 20, right thermal_char 21");
    EXPECT_EQ(lines_of(thermal()), " -- ");
    act("click Sea_butt, click thermal_butt");
    EXPECT_EQ(lines_of(thermal()), "    ");
    act("left Label3 22, right Label3 20");
    EXPECT_EQ(lines_of(hvc()), " - -");
    act("click Command1"); // the whole scale
    EXPECT_EQ(lines_of(hvc()), "::::");
    act("right Label3 20");
    EXPECT_EQ(lines_of(hvc()), ":-  ");
}

TEST_F(Layout, TheFocusShowsAroundAControlAndLeavesItsColour) {
    while (window.focusWidget() != &find("sample"))
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    find<Slider>("HScroll1").setValue(254);
    const double line = qRound(window.devicePixelRatioF()) / window.devicePixelRatioF();
    const QPointF edge = place("sample").topLeft() + QPointF(line / 2, 30);
    EXPECT_EQ(colour_at(edge), Qt::black);
    EXPECT_EQ(colour_at(edge + QPointF(line, 0)), Qt::white);
    EXPECT_EQ(colour_at(edge + QPointF(4 * line, 0)), QColor(254, 0, 0));
}

TEST_F(Layout, TheWindowHasItsLook) {
    EXPECT_TRUE(window.screen()->availableGeometry().contains(QRect({}, window.size())));
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
    EXPECT_FALSE(window.windowIcon().isNull());
    EXPECT_FALSE(find<PictureBox>("Image1").image().isNull());
    paint("Label3", 0, 99, 3); // grey 128, which is 0 in the lowest row of the preview
    const double zoom = std::min(1.0, window.width() / 961.);
    const QPointF preview = place("Picture1").topLeft() + QPointF(2, 2) + zoom * QPointF(50, 0);
    EXPECT_LT(colour_at(preview + zoom * QPointF(0, 254.5)).red(), 3);
    EXPECT_EQ(colour_at(preview + zoom * QPointF(0, 257.5)), QColor(240, 240, 240));
    EXPECT_EQ(colour_at(place("Label22").center() + zoom * QPointF(2.5, 2.5)), Qt::red);
    const double half = 0.5 / window.devicePixelRatioF();
    const QRectF row = QRectF(hvc().strip(0) | hvc().strip(99)).translated(hvc().pos());
    for (const QPointF edge : {QPointF(-half, 5), {row.width() + half, 5}, {400, -half}})
        EXPECT_EQ(colour_at(row.topLeft() + edge), QColor(120, 120, 120));
    const QColor grey(240, 240, 240);
    const std::tuple<const char*, QColor, QColor, double, bool> looks[]{
        {"Label1", Qt::blue, grey, 20.25, true},
        {"Label32", Qt::blue, grey, 8.25, false},
        {"Label12", Qt::red, grey, 12, true},
        {"Label13", Qt::green, grey, 12, true},
        {"Label14", Qt::blue, grey, 12, true},
        {"Label21", Qt::black, grey, 12, true},
        {"Label18 Label19 Label20", Qt::black, {192, 255, 255}, 8.25, false},
        {"Label5", Qt::black, Qt::green, 8.25, false},
        {"hvc_butt", Qt::black, Qt::green, 13.5, false},
        {"Command2", Qt::black, {250, 250, 250}, 9.75, true},
        {"hvc_help pickcolor", Qt::black, Qt::yellow, 8.25, false}};
    for (const auto& [names, ink, ground, points, bold] : looks)
        for (const QString& name : QString(names).split(' ')) {
            const QWidget& label = find(name);
            EXPECT_EQ(label.palette().color(label.foregroundRole()), ink) << names;
            EXPECT_EQ(colour_at(label.geometry().bottomRight() - QPoint(2, 2)), ground) << names;
            EXPECT_NEAR(label.font().pointSizeF() / window.font().pointSizeF(), points / 8.25, .01);
            EXPECT_EQ(label.font().bold(), bold) << names;
        }
}

} // namespace cirrava
