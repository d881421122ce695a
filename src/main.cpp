#include "platform/file_system.h"
#include "ui/cirrava.h"
#include "ui/look.h"

#include <QApplication>
#include <QSettings>

int main(int, char* argv[]) {
    int only_the_name = 1; // the command line is not read, not even by Qt
    cirrava::let_writes_past_size_limit_fail();
    QApplication::setDesktopSettingsAware(false);
    // Nothing is kept between runs: Qt's dialogs find nowhere for their histories. On Windows it
    // takes the Qt that packaging/windows builds.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ":/");
    // The desktop finds the program's name and icon by it.
    QApplication::setDesktopFileName("org.cirrava.CirravaPal");
    QApplication application(only_the_name, argv);
    cirrava::set_program_look(application);
    cirrava::Cirrava window;
    window.show();
    return QApplication::exec();
}
