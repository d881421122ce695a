#include "ui/placing.h"

#include "widgets/button.h"

#include <QLabel>

namespace cirrava {

namespace {

// `box` is in the control's pixels.
void fit(QWidget& control, const QString& caption, const QRect& box) {
    constexpr int narrowest = 60; // percent; below it nobody could read it
    const auto fits = [&] {
        const QFontMetrics metrics = control.fontMetrics();
        const QRect endless(0, 0, box.width(), QWIDGETSIZE_MAX);
        const QSize room = metrics.boundingRect(endless, Qt::TextWordWrap, caption).size();
        const bool one_line = room.height() < 2 * metrics.height();
        return room.width() <= box.width() && (one_line || room.height() <= box.height());
    };
    QFont font = control.font();
    for (int percent = 98; !fits() && percent >= narrowest; percent -= 2) {
        font.setStretch(percent);
        control.setFont(font);
    }
}

} // namespace

void place(QWidget& control, QWidget& window, const QString& name, const TwipRect& rect) {
    control.setParent(&window);
    control.setObjectName(name);
    control.setGeometry(to_pixels(rect, window.logicalDpiX()));
}

void make_fixed_window(QWidget& window, const QString& title, QSize client_area) {
    const Qt::WindowFlags kind = window.windowFlags() & Qt::WindowType_Mask;
    window.setWindowFlags(kind | Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                          Qt::MSWindowsFixedSizeDialogHint);
    window.setWindowTitle(title);
    const TwipRect rect{0, 0, client_area.width(), client_area.height()};
    window.setFixedSize(to_pixels(rect, window.logicalDpiX()).size());
}

void fit_captions(const QWidget& window) {
    for (auto* const label : window.findChildren<QLabel*>())
        fit(*label, label->text().trimmed(), label->contentsRect());
    for (auto* const button : window.findChildren<Button*>())
        fit(*button, button->text().trimmed(), button->caption_box());
}

} // namespace cirrava
