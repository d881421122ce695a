#pragma once

#include <QtWidgets>
#include <gtest/gtest.h>

// How windows look, against approved pictures of half their size and the texts of their controls.
// CIRRAVA_APPROVE=1 makes these anew: see that they show what you meant to change before you commit
// them.
namespace cirrava {

// What stands on the screen, as it is painted by now.
inline QImage on_screen(QWidget& window) {
    QCoreApplication::processEvents();
    return dynamic_cast<QImage&>(*window.backingStore()->paintDevice()).copy();
}

// The pixels of `one` that differ by more than `tolerance` from all of `other` within `reach`.
inline QRegion differing(const QImage& one, const QImage& other, int reach, int tolerance) {
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

// Where `window` has letters, as pixels of its picture.
inline QRegion letters(const QWidget& window) {
    QRegion region;
    for (const auto* control : window.findChildren<QWidget*>()) {
        const bool button = control->inherits("QPushButton"); // with an edge around the letters
        const QRect box = control->rect() + QMargins(1, 1, 1, 1) * (button ? -3 : 1);
        if (!control->property("text").toString().isEmpty() || control->inherits("QPlainTextEdit"))
            region |= box.translated(control->mapTo(&window, QPoint()));
    }
    return QTransform::fromScale(0.5, 0.5).map(region);
}

// What controls say: their texts, tooltips, and names and descriptions for screen readers.
inline void expect_approved_texts(const QWidget& window, const QString& picture) {
    std::string seen;
    for (const auto* control : window.findChildren<QWidget*>()) {
        QStringList says{control->property("text").toString(), control->toolTip(),
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
    EXPECT_EQ(seen, file.readAll().toStdString());
}

// Releases of Qt and of the fonts set letters a little apart, and the lines of a help text, of
// which only the first words are looked at.
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
    const QImage approved = QImage(file).convertToFormat(seen.format());
    ASSERT_EQ(seen.size(), approved.size()) << qPrintable(file);
    const QRegion differences =
        (differing(seen, approved, 0, 4) - letters(window)) |
        (letters(window) & (differing(seen, approved, 2, 80) | differing(approved, seen, 2, 80)));
    if (differences.isEmpty())
        return;
    QSet<QString> where;
    for (const QRect& place : differences)
        if (const auto* control = window.childAt(2 * place.center()))
            where << control->objectName();
    const QString failed = QCoreApplication::applicationDirPath() + "/failed_" + name;
    on_screen(window).save(failed + ".png");
    QPainter painter(&seen);
    painter.setClipRegion(differences);
    painter.fillRect(seen.rect(), Qt::magenta);
    painter.end();
    seen.save(failed + "_where.png");
    ADD_FAILURE() << qPrintable(where.values().join(' ')) << " in " << qPrintable(failed)
                  << ".png; CIRRAVA_APPROVE=1 approves it";
}

} // namespace cirrava
