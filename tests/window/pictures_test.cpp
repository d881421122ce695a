#include "window_fixture.h"

namespace cirrava {

// How the windows look, against approved pictures of half their size. CIRRAVA_APPROVE=1 makes these
// anew: see that they show what you meant to change before you commit them.
class Pictures : public WindowTest {
protected:
    // The pixels of `one` that differ by more than `tolerance` from all of `other` within `reach`.
    static QRegion differing(const QImage& one, const QImage& other, int reach, int tolerance) {
        QImage least(one.size(), QImage::Format_RGB32);
        least.fill(Qt::white);
        for (int x = -reach; x <= reach; ++x)
            for (int y = -reach; y <= reach; ++y) {
                QImage difference = one;
                QPainter painter(&difference);
                painter.setCompositionMode(QPainter::CompositionMode_Difference);
                painter.drawImage(x, y, other);
                QPainter least_painter(&least);
                least_painter.setCompositionMode(QPainter::CompositionMode_Darken);
                least_painter.drawImage(0, 0, difference);
            }
        QRegion pixels;
        for (int x = 0; x < least.width(); ++x)
            for (int y = 0; y < least.height(); ++y)
                if (const QColor here = least.pixelColor(x, y);
                    std::max({here.red(), here.green(), here.blue()}) > tolerance)
                    pixels |= QRect(x, y, 1, 1);
        return pixels;
    }

    // Where `shown` has letters, as pixels of its picture. Releases of Qt and of the fonts set them
    // a little apart.
    static QRegion letters(const QWidget& shown) {
        QRegion region;
        for (const auto* control : shown.findChildren<QWidget*>()) {
            const auto* button = qobject_cast<const Button*>(control);
            const QRect box = button != nullptr ? button->caption_box() : control->rect();
            if (!control->property("text").toString().isEmpty() ||
                control->inherits("QPlainTextEdit"))
                region |= box.translated(control->mapTo(&shown, QPoint())) + QMargins(1, 1, 1, 1);
        }
        return QTransform::fromScale(0.5, 0.5).map(region);
    }

    static void expect_as_approved(QWidget& shown, const QString& picture) {
        QCoreApplication::processEvents();
        const auto& screen = dynamic_cast<QImage&>(*shown.backingStore()->paintDevice());
        QImage seen =
            screen.scaled(shown.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_RGB32);
        seen.setDevicePixelRatio(1);
        const QString name = QString("%1_%2@%3.png")
                                 .arg(picture, shown.screen()->name())
                                 .arg(shown.devicePixelRatioF());
        if (qEnvironmentVariableIsSet("CIRRAVA_APPROVE"))
            seen.save(PICTURES "/" + name, "PNG", 0);
        const QImage approved = QImage(PICTURES "/" + name).convertToFormat(seen.format());
        ASSERT_EQ(seen.size(), approved.size()) << name.toStdString();
        const QRegion text = letters(shown);
        const QRegion differences =
            (differing(seen, approved, 0, 4) - text) |
            (text & (differing(seen, approved, 2, 80) | differing(approved, seen, 2, 80)));
        if (differences.isEmpty())
            return;
        QSet<QString> where;
        for (const QRect& place : differences)
            if (const auto* control = shown.childAt(2 * place.center()))
                where << control->objectName();
        const QString failed = QCoreApplication::applicationDirPath() + "/failed_" + name;
        screen.save(failed);
        QPainter painter(&seen);
        painter.setClipRegion(differences);
        painter.fillRect(seen.rect(), Qt::magenta);
        seen.save(failed.chopped(4) + "_where.png");
        ADD_FAILURE() << qPrintable(where.values().join(' ')) << ": see " << qPrintable(failed);
    }

    // The same of a dialog that opens by `steps`.
    void expect_next_as_approved(const QString& picture, const std::function<void()>& open) {
        in_next<QDialog>([&picture](QDialog& dialog) {
            if (auto* help = dialog.findChild<QPlainTextEdit*>()) // Qts set its lines apart
                help->setPlainText(help->toPlainText().left(20));
            expect_as_approved(dialog, picture);
        });
        open();
    }
};

TEST_F(Pictures, Start) {
    expect_as_approved(window, "start");
}

TEST_F(Pictures, ColouredScaleWithARangeAndHeldButtons) {
    paint("thermal_char", 0, 149, 14);
    paint("thermal_char", 150, 319, 19);
    act("left thermal_char 250, right thermal_char 130");
    auto& green = find("HScroll2");
    QTest::mousePress(&green, Qt::LeftButton, {}, green.rect().bottomRight() - QPoint(4, 8));
    QTest::mousePress(&find("Command5"), Qt::LeftButton);
    expect_as_approved(window, "thermal");
}

TEST_F(Pictures, HvcWithRangePreviewAndKeyboardFocus) {
    act("left thermal_char 20, right thermal_char 90");
    paint("Label3", 0, 59, 3);
    paint("Label3", 40, 79, 26);
    act("click Command1, left Label3 45, press HScroll3 Tab");
    expect_as_approved(window, "hvc");
}

TEST_F(Pictures, OtherWindows) {
    QApplication::setCursorFlashTime(0);
    expect_next_as_approved("how_to", [this] { act("click Command4"); });
    expect_next_as_approved("hvc_help", [this] { act("click hvc_help"); });
    expect_next_as_approved("about", [this] { act("click Command3"); });
    const Dialogs dialogs = qt_dialogs(window);
    expect_next_as_approved("question",
                            [&] { dialogs.ask("Write /<b>a</b>.bmp?", "Ready to create"); });
}

} // namespace cirrava
