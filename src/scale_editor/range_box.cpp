#include "scale_editor/range_box.h"

#include <QAccessibleWidget>
#include <QKeyEvent>

namespace cirrava {

namespace {

class AccessibleRangeBox : public QAccessibleWidget {
public:
    explicit AccessibleRangeBox(RangeBox& box) : QAccessibleWidget(&box, QAccessible::SpinBox) {}

    QString text(QAccessible::Text which) const override {
        if (which != QAccessible::Name)
            return QAccessibleWidget::text(which);
        const QString shown = static_cast<RangeBox*>(object())->text();
        return shown.trimmed().isEmpty() ? "blank" : shown;
    }
};

} // namespace

RangeBox::RangeBox() {
    // The same function is installed once, however often.
    QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
        auto* const box = qobject_cast<RangeBox*>(object);
        return box != nullptr ? new AccessibleRangeBox(*box) : nullptr;
    });
}

void RangeBox::keyPressEvent(QKeyEvent* event) {
    constexpr int page = 10;
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        return emit colour_asked();
    switch (event->keyCombination().toCombined() & ~Qt::KeypadModifier) {
    case Qt::Key_Up:
    case Qt::Key_Right:
        return emit stepped(1);
    case Qt::Key_Down:
    case Qt::Key_Left:
        return emit stepped(-1);
    case Qt::Key_PageUp:
        return emit stepped(page);
    case Qt::Key_PageDown:
        return emit stepped(-page);
    case (Qt::CTRL | Qt::Key_Home).toCombined():
        return emit sent_to_limit(false);
    case (Qt::CTRL | Qt::Key_End).toCombined():
        return emit sent_to_limit(true);
    default:
        TextBox::keyPressEvent(event);
    }
}

} // namespace cirrava
