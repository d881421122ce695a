#include "ui/cirrava.h"
#include "ui/look.h"

#include <QApplication>
#include <QSettings>

int main(int, char* argv[]) {
    int only_the_name = 1; // the command line is not read, not even by Qt
    QApplication::setDesktopSettingsAware(false);
    // Nothing is kept between runs: Qt's dialogs find no place for their histories. On Windows it
    // takes the Qt that packaging/windows builds.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ":/");
    // The desktop finds the program's name and icon by it.
    QApplication::setDesktopFileName("org.cirrava.CirravaPal");
    QApplication application(only_the_name, argv);
    cirrava::dress(application);
    cirrava::Cirrava window;
    window.show();
    return QApplication::exec();
}
