#include "scale_editor/range_box.h"

#include "scale_editor/qt_values.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <utility>

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
        return box_.cell() ? box_.text() : "blank";
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return box_.cell() ? value(*box_.cell()) : qQNaN(); }
    void setCurrentValue(const QVariant&) override {} // nobody types a temperature
    QVariant minimumValue() const override { return value(0); }
    QVariant maximumValue() const override { return value(cell_count(box_.kind()) - 1); }
    // A blank has no value, but there is no way to say so: of one with a step below 0, Orca at
    // least says no number.
    QVariant minimumStepSize() const override {
        return box_.cell() ? celsius_step(box_.kind()) : -1;
    }

private:
    // Without the noise of double arithmetic.
    double value(int cell) const { return to_qt(celsius_text(box_.kind(), cell)).toDouble(); }

    RangeBox& box_;
};

} // namespace

void RangeBox::show_cell(ScaleKind kind, std::optional<int> cell) {
    const QString before = text();
    kind_ = kind;
    cell_ = cell;
    setText(cell ? to_qt(celsius_text(kind, *cell)) : " ");
    if (text() == before)
        return;
    QAccessibleValueChangeEvent event(this, {}); // who hears of it asks for the value
    QAccessible::updateAccessibility(&event);
}

QAccessibleInterface* RangeBox::new_accessible() {
    return new AccessibleRangeBox(*this);
}

void RangeBox::keyPressEvent(QKeyEvent* event) {
    constexpr std::pair<Qt::Key, int> steps[]{{Qt::Key_Up, 1},      {Qt::Key_Right, 1},
                                              {Qt::Key_Down, -1},   {Qt::Key_Left, -1},
                                              {Qt::Key_PageUp, 10}, {Qt::Key_PageDown, -10}};
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        return emit colour_asked();
    const QKeyCombination pressed(event->modifiers() & ~Qt::KeypadModifier, Qt::Key(event->key()));
    for (const auto& [key, cells] : steps)
        if (pressed == QKeyCombination(key))
            return emit stepped(cells);
    for (const auto key : {Qt::Key_Home, Qt::Key_End})
        if (pressed == (Qt::CTRL | key))
            return emit sent_to_limit(key == Qt::Key_End);
    TextBox::keyPressEvent(event);
}

} // namespace cirrava
