// Opens a window, ends as soon as its first frame is painted. Compiled three times: with the
// program's window and, as measures for it, with an empty window of the same size and with one that
// has a line of text in each of the program's fonts.
#include "ui/cirrava.h"
#include "ui/look.h"

#include <QApplication>
#include <QPainter>
#include <QTimer>

namespace {

using namespace cirrava;

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

class EmptyWindow : public QWidget {
public:
    EmptyWindow() { setFixedSize(961, 627); }
};

class TextWindow : public EmptyWindow {
public:
    TextWindow() { dress(*qApp); }

protected:
    void paintEvent(QPaintEvent*) override {
        const FontLook fonts[]{{},
                               {.points = 12},
                               {.points = 13.5},
                               {.points = 12, .bold = true},
                               {.family = FontFamily::narrow, .points = 9.75, .bold = true},
                               {.family = FontFamily::narrow, .points = 20.25, .bold = true}};
        QPainter painter(this);
        int y = 0;
        for (const FontLook& font : fonts) {
            painter.setFont(to_font(font));
            painter.drawText(10, y += 50, "Generate HVC Palette -110C/-166F 49.5C/121.1F");
        }
    }
};

Dialogs dressed() {
    dress(*qApp); // before the first control is made
    return {};
}

class ProgramWindow : public Cirrava {
public:
    ProgramWindow() : Cirrava(dressed()) {}
};

} // namespace

int main(int argc, char* argv[]) {
    QApplication::setDesktopSettingsAware(false);
    QApplication application(argc, argv);
    WINDOW window;
    EndAfterFirstFrame end;
    window.installEventFilter(&end);
    window.show();
    return QApplication::exec();
}
