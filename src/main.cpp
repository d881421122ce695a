#include "ui/cirrava.h"
#include "ui/set_up.h"

#include <QApplication>

int main(int, char* argv[]) {
    int only_the_name = 1; // the command line is not read, not even by Qt
    cirrava::set_up_process();
    // The desktop finds the program's name and icon by it.
    QApplication::setDesktopFileName("org.cirrava.CirravaPal");
    QApplication application(only_the_name, argv);
    cirrava::set_up_application(application);
    cirrava::Cirrava window;
    window.show();
    return QApplication::exec();
}
