#pragma once

#include "widgets/button.h"

#include <QtWidgets>
#include <gtest/gtest.h>

// How windows look, against approved pictures of half their size and the texts of their controls.
// CIRRAVA_APPROVE=1 makes these anew: see that they show what you meant to change before you commit
// them.
namespace cirrava {

// What stands on the screen. `grab()` would paint what the program has forgotten to.
inline QImage on_screen(QWidget& window) {
    QCoreApplication::processEvents();
    return dynamic_cast<QImage&>(*window.backingStore()->paintDevice()).copy();
}

// How far apart two colours are: in the channel that differs most.
inline int difference(QRgb one, QRgb other) {
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))});
}

// Whether each of them has about the other's colour at most `reach` pixels away from `place`.
inline bool alike(const QImage& one, const QImage& other, QPoint place, int reach, int tolerance) {
    const QRect box = QRect(place, place).adjusted(-reach, -reach, reach, reach) & one.rect();
    bool one_has = false, other_has = false;
    for (int x = box.left(); x <= box.right(); ++x)
        for (int y = box.top(); y <= box.bottom(); ++y) {
            one_has |= difference(one.pixel(x, y), other.pixel(place)) <= tolerance;
            other_has |= difference(other.pixel(x, y), one.pixel(place)) <= tolerance;
        }
    return one_has && other_has;
}

// Where `window` shows letters.
inline QRegion letters_of(const QWidget& window) {
    QRegion region;
    for (const auto* control : window.findChildren<QWidget*>()) {
        const auto* button = qobject_cast<const Button*>(control);
        const QRect box = button ? button->caption_box() : control->rect() + QMargins(1, 1, 1, 1);
        if (!control->property("text").toString().isEmpty() || control->inherits("QPlainTextEdit"))
            region |= box.translated(control->mapTo(&window, QPoint()));
    }
    return region;
}

// What controls say: their texts, tooltips, and names and descriptions for screen readers.
inline void expect_approved_texts(const QWidget& window, const QString& picture) {
    std::string seen;
    for (const auto* control : window.findChildren<QWidget*>()) {
        QStringList says{control->property("text").toString(),
                         control->property("plainText").toString(), control->toolTip(),
                         control->accessibleName(), control->accessibleDescription()};
        says.removeAll("");
        if (!says.isEmpty())
            seen += (control->objectName() + ": " + says.join(" | ") + '\n').toStdString();
    }
    QFile file(PICTURES "/" + picture + ".txt");
    if (qEnvironmentVariableIsSet("CIRRAVA_APPROVE") && file.open(QIODevice::WriteOnly))
        file.write(seen.c_str());
    file.close();
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
    EXPECT_EQ(seen, file.readAll().toStdString()) << "CIRRAVA_APPROVE=1 approves it";
}

// Releases of Qt and of the fonts set letters a little apart, so these have only to be near to like
// ones. They break the lines of a help text elsewhere: of that the window keeps the first words.
inline void expect_as_approved(QWidget& window, const QString& picture) {
    expect_approved_texts(window, picture);
    if (auto* help = window.findChild<QPlainTextEdit*>())
        help->setPlainText(help->toPlainText().left(20));
    QImage seen = on_screen(window)
                      .scaled(window.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                      .convertToFormat(QImage::Format_RGB32);
    seen.setDevicePixelRatio(1);
    const QString name =
        QString("%1_%2@%3").arg(picture, window.screen()->name()).arg(window.devicePixelRatioF());
    const QString file = PICTURES "/" + name + ".png";
    if (qEnvironmentVariableIsSet("CIRRAVA_APPROVE"))
        seen.save(file, "PNG", 0);
    const QImage approved(file);
    ASSERT_EQ(seen.size(), approved.size()) << qPrintable(file);

    const QRegion letters = letters_of(window);
    QImage marked = seen;
    QSet<QString> controls;
    for (int x = 0; x < seen.width(); ++x)
        for (int y = 0; y < seen.height(); ++y) {
            const QPoint place(x, y); // equal there, or letters about equal nearby
            if (alike(seen, approved, place, 0, 4) ||
                (letters.contains(2 * place) && alike(seen, approved, place, 2, 80)))
                continue;
            marked.setPixelColor(place, Qt::magenta);
            const auto* control = window.childAt(2 * place);
            controls << (control != nullptr ? control->objectName() : "the window");
        }
    if (controls.isEmpty())
        return;
    const QString failed = QCoreApplication::applicationDirPath() + "/failed_" + name;
    on_screen(window).save(failed + ".png");
    marked.save(failed + "_where.png");
    ADD_FAILURE() << qPrintable(controls.values().join(' ')) << " in " << qPrintable(failed)
                  << ".png, in magenta in ..._where.png; CIRRAVA_APPROVE=1 approves it";
}

} // namespace cirrava
