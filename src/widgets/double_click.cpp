#include "widgets/double_click.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>

namespace cirrava {

namespace {

class DoubleClickFilter : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* object, QEvent* event) override {
        if (object->isWindowType()) // each event comes to a window first
            return false;
        // From a control it goes on to what that lies in, until one takes it.
        if (event->type() == QEvent::MouseButtonPress)
            pressed_ = object;
        return event->type() == QEvent::MouseButtonDblClick && object != pressed_;
    }

private:
    QPointer<QObject> pressed_; // what took the last press, while it exists
};

} // namespace

void ignore_split_double_clicks(QApplication& application) {
    application.installEventFilter(new DoubleClickFilter(&application)); // which owns it
}

} // namespace cirrava
