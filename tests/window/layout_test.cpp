#include "window_fixture.h"

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
    const auto expect_fit = [](const QString& caption, const QWidget& control, const QRect& box) {
        SCOPED_TRACE(caption.toStdString());
        const QFontMetrics metrics = control.fontMetrics();
        const QRect endless(0, 0, box.width(), QWIDGETSIZE_MAX);
        const QSize room =
            metrics.boundingRect(endless, Qt::TextWordWrap, caption.trimmed()).size();
        // The lines may stand out by the empty part above and below their letters.
        const int empty = metrics.height() - metrics.capHeight();
        EXPECT_LE(room.width(), box.width());
        EXPECT_LE(room.height(), box.height() + empty);
    };
    find<QLabel>("Label15").setText("255");
    for (const auto* label : window.findChildren<QLabel*>())
        expect_fit(label->text(), *label, label->contentsRect());
    for (const auto* button : window.findChildren<Button*>())
        expect_fit(button->text(), *button, button->caption_box());
    auto& box = find<QLineEdit>("Text1");
    expect_fit("-110.0", box, box.rect().adjusted(5, 2, -5, -2));
}

TEST_F(Layout, CaptionsHaveTheirTextsAndColours) {
    const struct {
        const char* label;
        const char* caption;
        QColor text, ground;
    } labels[]{
        {"Label1", "Cirrava PAL", Qt::blue, {}},
        {"Label12", "Red", Qt::red, {}},
        {"Label5", "Thermal", Qt::black, Qt::green},
        {"Label19", "-10 to 39.8 in 0.2C Intervals", Qt::black, QColor(192, 255, 255)},
        {"T1C(16)", "49.5C/121.1F", Qt::black, {}},
        {"SS(13)", "39.8C/103.64F", Qt::black, {}},
        {"hvc(5)", "39C/102.2F", Qt::black, {}},
    };
    const QImage picture = window.grab().toImage();
    for (const auto& [name, text, ink, ground] : labels) {
        const auto& label = find<QLabel>(name);
        EXPECT_EQ(label.text(), text);
        EXPECT_EQ(label.palette().color(QPalette::WindowText), ink) << name;
        const QPoint corner = label.geometry().bottomRight() * picture.devicePixelRatio();
        EXPECT_TRUE(!ground.isValid() || picture.pixelColor(corner) == ground) << name;
    }
    QStringList captions;
    for (const auto* button : window.findChildren<Button*>())
        captions << button->text();
    captions.sort();
    EXPECT_EQ(captions.join('|').mid(48),
              "About|Advanced Color Picker|Apply Color|Click here for more info|"
              "Generate HVC Palette|Generate Sea Surface Palette|Generate Thermal Palette|HVC|"
              "How to Use|Load From File|Quit|Reset|Sea Surface|Thermal");
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
    for (const QString& name : order) {
        EXPECT_EQ(window.focusWidget()->objectName(), name);
        QTest::keyClick(window.focusWidget(), Qt::Key_5); // the boxes do not take it
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(box(1) + box(2) + box(3) + box(4), "");
}

TEST_F(Layout, ControlsStandInTheWindowSideBySide) {
    for (const auto* one : controls()) {
        EXPECT_TRUE(window.rect().contains(one->geometry())) << qPrintable(one->objectName());
        for (const auto* other : controls()) {
            const QRect shared = one->geometry() & other->geometry();
            // Neighbours may share an edge; the scales lie over the temperatures between their
            // rows.
            EXPECT_TRUE(one == other || one->inherits("cirrava::CellArray") ||
                        other->inherits("cirrava::CellArray") ||
                        std::min(shared.width(), shared.height()) <= 2)
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
    EXPECT_EQ(thermal().mark(99).right(), thermal().rect().right());
    for (int x = edge_of(0); x < edge_of(3); ++x) {
        const bool red = x >= edge_of(1) && x < edge_of(2);
        EXPECT_EQ(picture.pixelColor(x, y), red ? Qt::red : Qt::black) << x;
    }
}

} // namespace cirrava
