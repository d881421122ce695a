#include "approved_picture.h"
#include "window_fixture.h"

namespace cirrava {

class Layout : public WindowTest {
protected:
    QColor colour_at(QPointF point) {
        const QPointF pixel = point * window.devicePixelRatioF();
        return on_screen(window).pixelColor(qFloor(pixel.x()), qFloor(pixel.y()));
    }

    void click_at(QPointF point) {
        mouse_at(point, {QEvent::MouseButtonPress, QEvent::MouseButtonRelease});
    }

    // Of a cell, after the pointer has rested there. Qt asks for it at a whole pixel.
    QString tooltip_at(QPointF point, CellArray& cells) {
        mouse_at(point, {QEvent::MouseMove});
        const QPoint pixel = point.toPoint();
        QHelpEvent rest(QEvent::ToolTip, cells.mapFrom(&window, pixel), window.mapToGlobal(pixel));
        QCoreApplication::sendEvent(&cells, &rest);
        return QToolTip::text();
    }
};

TEST_F(Layout, CaptionsFitTheirBoxes) {
    find<QLabel>("Label15").setText("255");
    for (const auto* control : window.findChildren<QWidget*>()) {
        const QString caption = control->property("text").toString().trimmed();
        if (caption.isEmpty())
            continue;
        const auto* button = qobject_cast<const Button*>(control);
        const QRect box = button != nullptr ? button->caption_box() : control->contentsRect();
        const QFontMetrics metrics = control->fontMetrics();
        const QSize needed = metrics.boundingRect(box, Qt::TextWordWrap, caption).size();
        EXPECT_LE(needed.width(), box.width() + 1) << caption.toStdString();
        // The last line may stand out by the empty part below its letters.
        EXPECT_LE(needed.height(), box.height() + metrics.descent()) << caption.toStdString();
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
    for (const QString& name : order) {
        EXPECT_EQ(window.focusWidget()->objectName(), name);
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
}

TEST_F(Layout, EachPixelOfTheScreenBelongsToTheCellThatItShows) {
    paint("thermal_char", 1, 1, 9);
    const QRectF red = thermal().strip(1).translated(thermal().pos());
    const double pixel = 1 / window.devicePixelRatioF();
    // From 4 pixels before to 4 behind, which are whole device pixels at every quarter.
    for (int i = 0; i * pixel < red.width() + 8; ++i) {
        const QPointF point(red.left() - 4 + (i + 0.5) * pixel, red.top() + 5.5);
        const int cell = point.x() < red.left() ? 0 : point.x() < red.right() ? 1 : 2;
        EXPECT_EQ(colour_at(point), cell == 1 ? Qt::red : Qt::black) << point.x();
        EXPECT_TRUE(tooltip_at(point, thermal()).startsWith(QString("(%1)").arg(cell + 1)))
            << point.x();
        click_at(point);
        EXPECT_EQ(text("Text1"), QString::number(-110 + 0.5 * cell, 'f', 1)) << point.x();
    }
}

TEST_F(Layout, ATooltipStandsAtItsCellAndGoesWithIt) {
    const QPoint point = thermal().mapTo(&window, place_of(thermal(), 50));
    EXPECT_EQ(tooltip_at(point, thermal()), "(51) -85.0Celcius / -121Farenheit");
    int tips_nearby = 0;
    for (const auto* shown : QApplication::topLevelWidgets())
        tips_nearby += shown->inherits("QTipLabel") &&
                       (shown->pos() - window.mapToGlobal(point)).manhattanLength() < 50;
    EXPECT_EQ(tips_nearby, 1);
    mouse_at(point + QPoint(20, 0), {QEvent::MouseMove});
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 2000));
}

TEST_F(Layout, CellsLieOverArrowsAndUnderButtons) {
    click_at(thermal().pos() + thermal().cell_box(99).topRight() + QPoint(0, 8));
    EXPECT_EQ(text("Text1"), "-60.5");
    for (const char* button : {"thermal_command", "Sea_butt", "sea_command", "hvc_butt"})
        click_at(find(button).geometry().bottomLeft() + QPoint(50, 0));
    EXPECT_EQ(user.saw.filter("Create").size(), 2);
    EXPECT_EQ(text("Label5"), "HVC");
    EXPECT_EQ(text("Text1"), " ");
}

} // namespace cirrava
