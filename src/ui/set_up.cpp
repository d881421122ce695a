#include "ui/set_up.h"

#include "platform/file_system.h"
#include "ui/look.h"
#include "widgets/held_enter.h"

#include <QApplication>
#include <QLocale>
#include <QSettings>

namespace cirrava {

void set_up_process() {
    let_writes_fail();
    QLocale::setDefault(QLocale::English); // the language of all texts, for sizes and dates, too
    QApplication::setDesktopSettingsAware(false);
    // Qt's dialogs would keep histories between runs, and find nowhere for them. On Windows this
    // needs the Qt that packaging/windows builds.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ":/");
}

void set_up_application(QApplication& application) {
    set_program_look(application);
    ignore_held_enter(application);
}

} // namespace cirrava
