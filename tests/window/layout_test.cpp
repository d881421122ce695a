#include "window_fixture.h"

#include <QImage>
#include <QSet>

namespace cirrava {

namespace {

class Layout : public WindowTest {
protected:
    QList<QWidget*> controls() const {
        return window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    }
};

// The room that a caption's ink takes when wrapped to the width of `box`: the lines' height without
// the empty part of the font's.
QSize room_for(const QString& caption, const QWidget& control, const QRect& box) {
    const QFontMetrics metrics = control.fontMetrics();
    const QSize lines =
        metrics.boundingRect(QRect(0, 0, box.width(), 1000), Qt::TextWordWrap, caption).size();
    const int empty = metrics.height() - metrics.tightBoundingRect(caption).height();
    return {lines.width(), lines.height() - empty};
}

} // namespace

TEST_F(Layout, EveryCaptionFitsItsBox) {
    const auto expect_fit = [](const QString& caption, const QWidget& control, const QRect& box) {
        if (caption.isEmpty())
            return;
        const QSize room = room_for(caption.trimmed(), control, box);
        EXPECT_LE(room.width(), box.width()) << caption.toStdString();
        EXPECT_GE(control.font().stretch() + 100 * (control.font().stretch() == 0), 90)
            << caption.toStdString() << " is narrower than it needs to be";
        EXPECT_LE(room.height(), box.height()) << caption.toStdString();
    };
    find<QLabel>("Label15").setText("255");
    for (const auto* label : window.findChildren<QLabel*>())
        expect_fit(label->text(), *label, label->contentsRect());
    for (const auto* button : window.findChildren<Button*>())
        expect_fit(button->text(), *button, button->caption_box());
    expect_fit("-110.0", find<QWidget>("Text1"),
               find<QWidget>("Text1").rect().adjusted(5, 2, -5, -2));
}

TEST_F(Layout, NamesAreUniqueAndNothingLeavesTheWindow) {
    QSet<QString> names;
    for (const auto* control : controls()) {
        EXPECT_FALSE(control->objectName().isEmpty());
        EXPECT_FALSE(names.contains(control->objectName())) << control->objectName().toStdString();
        names << control->objectName();
        EXPECT_TRUE(window.rect().contains(control->geometry()))
            << control->objectName().toStdString();
    }
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
}

TEST_F(Layout, WhatHasNoCaptionSaysWhatItIs) {
    EXPECT_EQ(find<QWidget>("HScroll1").accessibleName(), "Red");
    EXPECT_EQ(find<QWidget>("Text1").accessibleName(), "Start, degrees Celsius");
    EXPECT_EQ(find<QWidget>("color(9)").accessibleName(), "Preset 9: 255, 0, 0");
    for (const auto* control : controls()) {
        const bool has_caption = qobject_cast<const Button*>(control) != nullptr;
        EXPECT_TRUE(control->focusPolicy() == Qt::NoFocus || has_caption ||
                    !control->accessibleName().isEmpty())
            << control->objectName().toStdString();
    }
}

TEST_F(Layout, TabGoesThroughAllControlsInOrder) {
    QStringList order{"Text1",    "Text2",           "Text3",       "Text4",
                      "HScroll1", "HScroll2",        "HScroll3",    "sample",
                      "Command2", "Command3",        "Command4",    "Command5",
                      "Command6", "thermal_command", "sea_command", "hvc_command"};
    for (int i = 0; i < 48; ++i)
        order << QString("color(%1)").arg(i);
    order += {"pickcolor", "hvc_help",     "Picture1", "HScroll4",
              "Command1",  "thermal_butt", "Sea_butt", "hvc_butt"};
    for (auto* control : controls())
        control->setEnabled(true);
    QStringList visited;
    for (qsizetype i = 0; i < order.size(); ++i) {
        visited << window.focusWidget()->objectName();
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visited, order);
    EXPECT_EQ(window.focusWidget()->objectName(), "Text1");
}

TEST_F(Layout, CellsAreCrispAndTouch) {
    select(thermal(), 1, 1);
    apply("color(9)");
    const QImage picture = window.grab().toImage();
    const double scale = picture.devicePixelRatio();
    const QRect cell = thermal().cell_box(1).translated(thermal().pos());
    const QRect next = thermal().cell_box(2).translated(thermal().pos());
    const int y = qRound(cell.center().y() * scale);
    int red_pixels = 0;
    for (int x = qRound((cell.left() - 10) * scale); x < qRound((next.left() + 10) * scale); ++x) {
        const QColor pixel = picture.pixelColor(x, y);
        EXPECT_TRUE(pixel == QColor(255, 0, 0) || pixel == QColor(0, 0, 0) ||
                    x < qRound(thermal().x() * scale))
            << pixel.name().toStdString() << " at " << x;
        red_pixels += pixel == QColor(255, 0, 0) ? 1 : 0;
    }
    EXPECT_EQ(red_pixels, qRound((next.left() - cell.left()) * scale));
}

} // namespace cirrava
