#include "widgets/held_enter.h"

#include <QApplication>
#include <QKeyEvent>

namespace cirrava {

namespace {

bool is_enter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

class HeldEnterFilter : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* object, QEvent* event) override {
        if (!object->isWindowType()) // each event comes to a window first
            return false;
        const auto* const key = dynamic_cast<const QKeyEvent*>(event);
        if (event->type() == QEvent::MouseButtonPress)
            enter_was_last_ = false;
        if (event->type() == QEvent::KeyRelease && is_enter(*key))
            released_ = key->timestamp();
        if (event->type() != QEvent::KeyPress)
            return false;
        const bool ignored = is_held(*key);
        enter_was_last_ = is_enter(*key);
        return ignored;
    }

private:
    // `isAutoRepeat` alone is not enough: where a window has just opened, Qt may report a held key
    // as released and pressed anew in one instant, and a held Enter wrote the file each time. Where
    // a window has just closed, Qt may miss the release and report the next press as a repetition;
    // then something else was pressed in between.
    bool is_held(const QKeyEvent& press) const {
        const bool repeats =
            press.isAutoRepeat() || (released_ != 0 && press.timestamp() == released_);
        return is_enter(press) && enter_was_last_ && repeats;
    }

    bool enter_was_last_ = false; // of all that was pressed
    quint64 released_ = 0;        // the instant when Enter was released; 0 is none
};

} // namespace

void ignore_held_enter(QApplication& application) {
    application.installEventFilter(new HeldEnterFilter(&application)); // which owns it
}

} // namespace cirrava
