#include "widgets/false_repeats.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QPointer>

namespace cirrava {

namespace {

bool is_enter(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

class FalseRepeats : public QObject {
public:
    using QObject::QObject;

    // Each event comes to a window first, then to a control in it; the keys of a shortcut come to
    // that alone.
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Shortcut)
            enter_was_last_ = is_enter(static_cast<QShortcutEvent*>(event)->key()[0].key());
        return object->isWindowType() ? is_held_enter(*event) : is_split(*object, *event);
    }

private:
    bool is_held_enter(const QEvent& event) {
        if (event.type() == QEvent::MouseButtonPress)
            enter_was_last_ = false;
        if (event.type() != QEvent::KeyPress && event.type() != QEvent::KeyRelease)
            return false;
        const auto& key = static_cast<const QKeyEvent&>(event);
        const bool held = event.type() == QEvent::KeyPress && is_held(key);
        if (event.type() == QEvent::KeyPress)
            enter_was_last_ = is_enter(key.key());
        else if (is_enter(key.key()))
            released_ = key.timestamp();
        return held;
    }

    // `isAutoRepeat` alone is not enough: where a window has just opened, Qt may report a held key
    // as released and pressed anew in one instant, and a held Enter wrote the file each time. Where
    // a window has just closed, Qt may miss the release and report the next press as a repetition;
    // then something else was pressed in between.
    bool is_held(const QKeyEvent& press) const {
        return is_enter(press.key()) && enter_was_last_ &&
               (press.isAutoRepeat() || (released_ != 0 && press.timestamp() == released_));
    }

    // A press goes from a control on to what that lies in, until one takes it. (No control leaves
    // double clicks to what it lies in: they would be lost.)
    bool is_split(QObject& control, const QEvent& event) {
        if (event.type() == QEvent::MouseButtonPress)
            pressed_ = &control;
        if (event.type() != QEvent::MouseButtonDblClick || pressed_ == &control)
            return false;
        const auto* const first = qobject_cast<QWidget*>(pressed_.data());
        const auto* const button = qobject_cast<QAbstractButton*>(&control);
        return first == nullptr || button == nullptr || first->window() != button->window();
    }

    bool enter_was_last_ = false; // of all that was pressed
    quint64 released_ = 0;        // the instant when Enter was released; 0 is none
    QPointer<QObject> pressed_;   // what took the last press of a mouse button, while it exists
};

} // namespace

void ignore_false_repeats(QApplication& application) {
    application.installEventFilter(new FalseRepeats(&application)); // which owns it
}

} // namespace cirrava
