#include "window_fixture.h"

namespace cirrava {

// How the windows look, against approved pictures. CIRRAVA_APPROVE=1 makes them anew: see that they
// show what you meant to change before you commit them.
struct Situation {
    const char* picture;
    const char* steps;
    bool opens = false; // another window, which the picture shows
};

void PrintTo(const Situation& situation, std::ostream* out) {
    *out << situation.picture;
}

const Situation situations[]{
    {"start", ""},
    {"thermal", "left thermal_char 0, right thermal_char 149, click color(14), click Command2, "
                "left thermal_char 150, right thermal_char 319, click color(19), click Command2, "
                "left thermal_char 250, right thermal_char 130, hold HScroll2, hold Command5"},
    {"hvc", "left thermal_char 20, right thermal_char 90, left Label3 0, right Label3 59, "
            "click color(3), click Command2, left Label3 40, right Label3 79, click color(26), "
            "click Command2, click Command1, left Label3 45, press HScroll3 Tab"},
    {"how_to", "click Command4", true},
    {"hvc_help", "click hvc_help", true},
    {"about", "click Command3", true},
    {"question", "ask", true}};

class Pictures : public WindowTest, public testing::WithParamInterface<Situation> {
protected:
    // Where letters may stand up to four pixels off: releases of Qt and of the fonts differ in
    // that.
    static QRegion texts(const QWidget& shown) {
        QRegion region;
        for (const auto* control : shown.findChildren<QWidget*>()) {
            const auto* button = qobject_cast<const Button*>(control);
            const QRect box = button != nullptr ? button->caption_box() : control->rect();
            if (!control->property("text").toString().isEmpty() ||
                control->inherits("QPlainTextEdit"))
                region |= box.translated(control->mapTo(&shown, QPoint()));
        }
        return region;
    }

    // By how much that pixel of `one` differs from all that `other` has up to `distance` from it.
    static int difference(const QImage& one, const QImage& other, QPoint pixel, int distance) {
        const QColor here = one.pixelColor(pixel);
        int least = 255;
        for (int x = pixel.x() - distance; x <= pixel.x() + distance; ++x)
            for (int y = pixel.y() - distance; y <= pixel.y() + distance; ++y) {
                const QColor there = other.pixelColor(x, y);
                least = std::min(least, std::max({std::abs(here.red() - there.red()),
                                                  std::abs(here.green() - there.green()),
                                                  std::abs(here.blue() - there.blue())}));
            }
        return least;
    }

    void expect_as_approved(QWidget& shown) {
        if (auto* help = shown.findChild<QPlainTextEdit*>()) // Qts differ in the height of lines
            help->setPlainText(help->toPlainText().left(20));
        QCoreApplication::processEvents();
        const auto& pixels = dynamic_cast<QImage&>(*shown.backingStore()->paintDevice());
        const QImage seen = // small, for the repository's sake
            pixels.scaled(shown.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const QString name = QString("%1_%2@%3.png")
                                 .arg(GetParam().picture, shown.screen()->name())
                                 .arg(shown.devicePixelRatioF());
        if (qEnvironmentVariableIsSet("CIRRAVA_APPROVE"))
            seen.save(PICTURES "/" + name, "PNG", 0);
        const QImage approved(PICTURES "/" + name);
        ASSERT_EQ(seen.size(), approved.size()) << name.toStdString();
        const QRegion letters = texts(shown);
        QRegion differences;
        for (int x = 0; x < seen.width(); ++x)
            for (int y = 0; y < seen.height(); ++y) {
                const QRect place(2 * x, 2 * y, 2, 2);
                const auto [distance, tolerance] =
                    letters.intersects(place) ? std::pair(2, 80) : std::pair(0, 4);
                if (difference(seen, approved, {x, y}, distance) > tolerance ||
                    difference(approved, seen, {x, y}, distance) > tolerance)
                    differences |= place;
            }
        if (differences.isEmpty())
            return;
        QImage marked = pixels.copy();
        marked.setDevicePixelRatio(shown.devicePixelRatioF());
        QPainter painter(&marked);
        painter.setClipRegion(differences);
        painter.fillRect(shown.rect(), Qt::magenta);
        marked.save(QCoreApplication::applicationDirPath() + "/different_" + name);
        pixels.save(QCoreApplication::applicationDirPath() + '/' + name);
        for (const QRect& place : differences)
            if (const auto* control = shown.childAt(place.center()); control != nullptr)
                where << control->objectName();
        ADD_FAILURE() << "see " << name.toStdString() << " and different_" << name.toStdString()
                      << " beside this program: " << where.values().join(' ').toStdString();
    }

    QSet<QString> where;
};

TEST_P(Pictures, LookAsApproved) {
    QApplication::setCursorFlashTime(0);
    if (GetParam().opens)
        in_next<QDialog>([this](QDialog& dialog) { expect_as_approved(dialog); });
    const QString steps = GetParam().steps;
    if (steps == "ask")
        qt_dialogs(window).ask("/tmp/hvc.bmp already exists. Do you want to replace it?", "");
    else if (!steps.isEmpty())
        act(steps);
    if (!GetParam().opens)
        expect_as_approved(window);
}

INSTANTIATE_TEST_SUITE_P(, Pictures, testing::ValuesIn(situations),
                         [](const auto& situation) { return situation.param.picture; });

} // namespace cirrava
