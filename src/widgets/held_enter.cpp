#include "widgets/held_enter.h"

#include <QApplication>
#include <QKeyEvent>

namespace cirrava {

namespace {

class HeldEnterFilter : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
            return false;
        const auto* const key = static_cast<QKeyEvent*>(event);
        if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
            return false;
        if (event->type() == QEvent::KeyPress)
            return key->isAutoRepeat() || (released_ != 0 && key->timestamp() == released_);
        released_ = key->timestamp();
        return false;
    }

private:
    // When Enter was last released; 0 is no time. A held key is released and pressed in one
    // instant, also where a window has just opened and Qt does not tell that it is held.
    quint64 released_ = 0;
};

} // namespace

void ignore_held_enter(QApplication& application) {
    application.installEventFilter(new HeldEnterFilter(&application)); // which owns it
}

} // namespace cirrava
