#include "widgets/held_enter.h"

#include <QApplication>
#include <QKeyEvent>

namespace cirrava {

namespace {

class HeldEnterFilter : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto* const key = static_cast<QKeyEvent*>(event);
        return key->isAutoRepeat() && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter);
    }
};

} // namespace

void ignore_held_enter(QApplication& application) {
    application.installEventFilter(new HeldEnterFilter(&application)); // which owns it
}

} // namespace cirrava
