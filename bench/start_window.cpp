// Opens a window, ends as soon as its first frame is painted. Compiled twice: with the program's
// window, and as the measure for it, with an empty one of the same size.
#include <QApplication>
#include <QTimer>

#ifdef EMPTY_WINDOW
#include <QWidget>
#else
#include "ui/cirrava.h"
#include "ui/look.h"
#endif

namespace {

class EndAfterFirstFrame : public QObject {
public:
    bool eventFilter(QObject* window, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            window->removeEventFilter(this);
            QTimer::singleShot(0, [] { QCoreApplication::exit(0); }); // once it is on the screen
        }
        return false;
    }
};

} // namespace

int main(int argc, char* argv[]) {
    QApplication::setDesktopSettingsAware(false);
    QApplication application(argc, argv);
#ifdef EMPTY_WINDOW
    QWidget window;
    window.setFixedSize(961, 627);
#else
    cirrava::dress(application);
    cirrava::Cirrava window;
#endif
    EndAfterFirstFrame end;
    window.installEventFilter(&end);
    window.show();
    return QApplication::exec();
}
