#include "scale_editor/range_box.h"

#include "scale_editor/scale.h"

#include <QAccessibleWidget>
#include <QKeyEvent>

namespace cirrava {

namespace {

// Screen readers speak of a new name or description only where the event brings it along, which
// that of Qt 6.4 does not. For a new value they ask.
class AccessibleRangeBox : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleRangeBox(RangeBox& box)
        : QAccessibleWidget(&box, QAccessible::SpinBox), box_(box) {}

    QString text(QAccessible::Text which) const override {
        if (which != QAccessible::Description)
            return QAccessibleWidget::text(which);
        return is_blank() ? "blank" : box_.text();
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return is_blank() ? qQNaN() : box_.text().toDouble(); }
    void setCurrentValue(const QVariant&) override {}
    // The limits are those of Thermal, within which the other scales lie.
    QVariant minimumValue() const override { return celsius(ScaleKind::thermal, 0); }
    QVariant maximumValue() const override { return celsius(ScaleKind::thermal, 319); }
    // Below 0 there is no step: then Orca says no number where there is a blank.
    QVariant minimumStepSize() const override {
        return is_blank() ? -1 : box_.text().contains('.') ? 0.1 : 1;
    }

private:
    bool is_blank() const { return box_.text().trimmed().isEmpty(); }

    RangeBox& box_;
};

} // namespace

RangeBox::RangeBox() {
    // The same function is installed once, however often.
    QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
        auto* const box = qobject_cast<RangeBox*>(object);
        return box != nullptr ? new AccessibleRangeBox(*box) : nullptr;
    });
}

void RangeBox::show_text(const QString& text) {
    if (text == this->text())
        return;
    setText(text);
    QAccessibleValueChangeEvent event(this, {}); // who hears of it asks for the value
    QAccessible::updateAccessibility(&event);
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
