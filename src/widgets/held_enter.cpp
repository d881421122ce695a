#include "widgets/held_enter.h"

#include <QApplication>
#include <QKeyEvent>

namespace cirrava {

namespace {

bool is_enter(const QEvent& event) {
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

class HeldEnterFilter : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* object, QEvent* event) override {
        if (!object->isWindowType()) // to which events come first
            return false;
        if (event->type() == QEvent::KeyPress)
            return is_held(static_cast<const QKeyEvent&>(*event));
        if (event->type() == QEvent::MouseButtonPress)
            enter_is_last_ = false;
        else if (event->type() == QEvent::KeyRelease && is_enter(*event))
            released_ = static_cast<const QKeyEvent*>(event)->timestamp();
        return false;
    }

private:
    // Where a window has just opened, Qt may not tell that a key is held: then its release and its
    // press are of one instant. Where a window has just closed, Qt may miss the release and take
    // the next press for one of a held key: then something else was pressed in between.
    bool is_held(const QKeyEvent& press) {
        const bool repeats =
            press.isAutoRepeat() || (released_ != 0 && press.timestamp() == released_);
        const bool held = is_enter(press) && enter_is_last_ && repeats;
        enter_is_last_ = is_enter(press);
        return held;
    }

    bool enter_is_last_ = false; // of what was pressed
    quint64 released_ = 0;       // when Enter was; 0 is no time
};

} // namespace

void ignore_held_enter(QApplication& application) {
    application.installEventFilter(new HeldEnterFilter(&application)); // which owns it
}

} // namespace cirrava
