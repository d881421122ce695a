#include "ui/placing.h"

#include "platform/controls.h"
#include "ui/look.h"

#include <QLabel>

namespace cirrava {

void place(QWidget& control, QWidget& window, const QString& name, const Place& place) {
    control.setParent(&window);
    control.setObjectName(name);
    control.setGeometry(to_pixels(place, window.logicalDpiX()));
}

void fix_frame(QWidget& window, const QString& title, const Place& client_area) {
    const Qt::WindowFlags kind = window.windowFlags() & Qt::WindowType_Mask;
    window.setWindowFlags(kind | Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                          Qt::MSWindowsFixedSizeDialogHint);
    window.setWindowTitle(title);
    window.setFixedSize(to_pixels(client_area, window.logicalDpiX()).size());
}

void fit_captions(const QWidget& window) {
    for (auto* const label : window.findChildren<QLabel*>())
        fit(*label, label->text().trimmed(), label->contentsRect());
    for (auto* const button : window.findChildren<Button*>())
        fit(*button, button->text().trimmed(), button->caption_box());
}

} // namespace cirrava
