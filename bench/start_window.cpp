// Opens a window, writes a byte when its first frame is painted, and ends. Compiled twice: with the
// program's window and, as a measure for it, with one of the same size that has a line of text.
#include "ui/cirrava.h"
#include "ui/set_up.h"

#include <QApplication>
#include <QPainter>
#include <QTimer>
#include <cstdio>

namespace {

using namespace cirrava;

class EndAfterFirstFrame : public QObject {
public:
    bool eventFilter(QObject* window, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            window->removeEventFilter(this);
            QTimer::singleShot(0, [] { // once it is on the screen
                std::putchar('!');
                std::fflush(stdout);
                QCoreApplication::exit(0);
            });
        }
        return false;
    }
};

class LineWindow : public QWidget {
public:
    LineWindow() { setFixedSize(961, 627); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter(this).drawText(10, 50, "Generate HVC Palette -110C/-166F 49.5C/121.1F");
    }
};

} // namespace

int main(int argc, char* argv[]) {
    set_up_process();
    QApplication application(argc, argv);
    set_up_application(application);
    WINDOW window;
    EndAfterFirstFrame end;
    window.show();
    window.installEventFilter(&end); // what is painted before is not on the screen
    return QApplication::exec();
}
