#include "ui/cirrava.h"
#include "ui/look.h"

#include <QApplication>

int main(int, char* argv[]) {
    int only_the_name = 1; // the command line is not read, not even by the toolkit
    QApplication::setDesktopSettingsAware(false);
    QApplication application(only_the_name, argv);
    cirrava::dress(application);
    cirrava::Cirrava window;
    window.show();
    return QApplication::exec();
}
