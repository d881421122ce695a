#include "window_fixture.h"

#include <QAccessible>
#include <QFocusFrame>
#include <QScreen>

namespace cirrava {

namespace {

class Layout : public WindowTest {
protected:
    QList<QWidget*> controls() const {
        return window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    }
};

} // namespace

TEST_F(Layout, EveryCaptionFitsItsBox) {
    find<QLabel>("Label15").setText("255");
    for (const auto* label : window.findChildren<QLabel*>()) {
        EXPECT_LE(label->minimumSizeHint().width(), label->width() + 1); // the widest word
        // The last line may stand out by the empty part below its letters.
        EXPECT_LE(label->heightForWidth(label->width()),
                  label->height() + label->fontMetrics().descent());
    }
    for (const auto* button : window.findChildren<Button*>()) {
        const QRect text = button->fontMetrics().boundingRect(
            button->caption_box(), Qt::AlignCenter | Qt::TextWordWrap, button->text().trimmed());
        EXPECT_TRUE(button->rect().contains(text)) << button->text().toStdString();
    }
}

TEST_F(Layout, CaptionsHaveTheirTextsAndColours) {
    const QImage picture = window.grab().toImage();
    const auto look_of = [&](const char* name) {
        const auto& label = find<QLabel>(name);
        const QPoint corner = label.geometry().bottomRight() * picture.devicePixelRatio();
        return label.text() + ' ' + label.palette().color(QPalette::WindowText).name() + " on " +
               picture.pixelColor(corner).name();
    };
    EXPECT_EQ(look_of("Label12"), "Red #ff0000 on #f0f0f0");
    EXPECT_EQ(look_of("Label5"), "Thermal #000000 on #00ff00");
    EXPECT_EQ(look_of("Label19"), "-10 to 39.8 in 0.2C Intervals #000000 on #c0ffff");
    EXPECT_EQ(caption("SS(12)") + caption("hvc(5)"), "38C/100.4F39C/102.2F");
    QString captions, faces;
    for (const auto* button : window.findChildren<Button*>()) {
        captions += button->text();
        faces += button->face().name();
    }
    EXPECT_EQ(captions, "ThermalSea SurfaceHVCGenerate Thermal PaletteGenerate Sea Surface Palette"
                        "Generate HVC PaletteClick here for more infoResetAdvanced Color Picker"
                        "Apply ColorAboutHow to UseLoad From FileQuit");
    EXPECT_EQ(qChecksum(faces.toLatin1()), 20347); // of green, yellow and the presets
    EXPECT_EQ(find<Button>("Command2").toolTip(), "Click to apply color to range selected");
    EXPECT_FALSE(find<QLabel>("Image1").pixmap().isNull());
}

TEST_F(Layout, TabGoesThroughAllControlsInOrder) {
    QStringList order = QString("Text1 Text2 Text3 Text4 HScroll1 HScroll2 HScroll3 sample "
                                "Command2 Command3 Command4 Command5 Command6 thermal_command "
                                "sea_command hvc_command pickcolor hvc_help Picture1 HScroll4 "
                                "Command1 thermal_butt Sea_butt hvc_butt Text1")
                            .split(' ');
    for (int i = 0; i < 48; ++i)
        order.insert(16 + i, QString("color(%1)").arg(i));
    for (auto* control : controls())
        control->setEnabled(true);
    QStringList spoken;
    for (const QString& name : order) {
        EXPECT_EQ(window.focusWidget()->objectName(), name);
        const auto* control = QAccessible::queryAccessibleInterface(window.focusWidget());
        spoken << control->text(QAccessible::Name);
        QTest::keyClick(window.focusWidget(), Qt::Key_5); // the boxes do not take it
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(spoken.removeDuplicates(), 1); // the first, come round
    EXPECT_EQ(box(1) + box(2) + box(3) + box(4), "");
}

TEST_F(Layout, ControlsStandInTheWindowSideBySide) {
    QList<QWidget*> others = controls();
    for (const CellArray* cells : {&thermal(), &sea(), &hvc()})
        others.removeOne(cells); // which lie over the temperatures between their rows
    EXPECT_TRUE(window.screen()->availableGeometry().contains(QRect({}, window.size())));
    while (!others.isEmpty()) {
        const auto* one = others.takeLast();
        EXPECT_TRUE(window.rect().contains(one->geometry())) << qPrintable(one->objectName());
        for (const auto* other : others) {
            const QRect shared = one->geometry() & other->geometry();
            EXPECT_LE(std::min(shared.width(), shared.height()), 2) // neighbours may share an edge
                << qPrintable(one->objectName() + " and " + other->objectName());
        }
    }
    for (const int row : {0, 1, 2})
        EXPECT_EQ(find<QWidget>(QString("Label%1").arg(12 + row)).y(),
                  find<QWidget>(QString("HScroll%1").arg(1 + row)).y());
}

TEST_F(Layout, CellsAreCrispAndTouch) {
    select(thermal(), 1, 1);
    apply(9);
    const QImage picture = window.grab().toImage();
    const auto edge_of = [&](int cell) {
        return qRound((thermal().x() + thermal().cell_box(cell).x()) * picture.devicePixelRatio());
    };
    const int y = qRound((thermal().y() + 8) * picture.devicePixelRatio());
    EXPECT_EQ(thermal().strip(99).right(), thermal().rect().right());
    for (int x = edge_of(0); x < edge_of(3); ++x) {
        const bool red = x >= edge_of(1) && x < edge_of(2);
        EXPECT_EQ(picture.pixelColor(x, y), red ? Qt::red : Qt::black) << x;
    }
}

TEST_F(Layout, ALineUnderCellsShowsWhichAreMarked) {
    // Two points below each of the cells 19 to 22.
    const auto line_of = [this](const CellArray& cells) {
        const QImage picture = window.grab().toImage();
        QString line;
        for (int cell = 19; cell <= 22; ++cell)
            for (const double part : {0.1, 0.35}) {
                const QRectF box = cells.cell_box(cell).translated(cells.pos());
                const double pitch = cells.cell_box(cell + 1).x() - cells.cell_box(cell).x();
                const QPointF point(box.left() + part * pitch, box.bottom() + 0.5);
                const QPointF pixel = point * picture.devicePixelRatio();
                const QColor colour = picture.pixelColor(int(pixel.x()), int(pixel.y()));
                line += colour == QColor(0, 95, 184) ? '-' : '.';
            }
        return line;
    };
    select(thermal(), 20, 21);
    EXPECT_EQ(line_of(thermal()), "..----..");
    select(hvc(), 22, 20);
    EXPECT_EQ(line_of(thermal()), "........");
    EXPECT_EQ(line_of(hvc()), "..--..--");
    select(hvc(), 20, 21);
    press("Sea_butt");
    press("hvc_butt"); // the boxes are blank, and the brightness would change the cells
    EXPECT_EQ(line_of(hvc()), "..-.-...");
}

TEST_F(Layout, TheFocusShowsAroundAControlAndLeavesItsColour) {
    EXPECT_FALSE(window.findChild<QFocusFrame*>()->isVisible());
    while (window.focusWidget() != &find<Swatch>("sample"))
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    find<NumberBar>("HScroll1").setValue(254);
    const QImage picture = window.grab().toImage();
    const int line = qRound(picture.devicePixelRatio());
    const QPoint edge = find<Swatch>("sample").pos() * picture.devicePixelRatio() + QPoint(0, 30);
    EXPECT_EQ(picture.pixelColor(edge), Qt::black);
    EXPECT_EQ(picture.pixelColor(edge + QPoint(line, 0)), Qt::white);
    EXPECT_EQ(picture.pixelColor(edge + QPoint(4 * line, 0)), QColor(254, 0, 0));
}

} // namespace cirrava
