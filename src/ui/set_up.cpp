#include "ui/set_up.h"

#include "platform/file_system.h"
#include "ui/look.h"
#include "widgets/false_repeats.h"
#include "widgets/spoken.h"

#include <QApplication>
#include <QLocale>
#include <QLoggingCategory>
#include <QSettings>

namespace cirrava {

void set_up_process() {
    prepare_for_files();
    QLocale::setDefault(QLocale::English); // for the digits in the colour dialog
    QApplication::setDesktopSettingsAware(false);
    // Qt's dialogs would keep histories between runs, and find nowhere for them. On Windows this
    // needs the Qt that packaging/windows builds.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ":/");
}

void set_up_application(QApplication& application) {
    // Qt's warnings, of faults in an image for instance, would hold the program where nobody reads
    // its standard error. QT_LOGGING_RULES brings them back.
    QLoggingCategory::setFilterRules("*=false");
    set_program_look(application);
    ignore_false_repeats(application);
    QAccessible::installFactory([](const QString&, QObject* object) {
        auto* const spoken = dynamic_cast<Spoken*>(object);
        return spoken != nullptr ? spoken->new_accessible() : nullptr;
    });
}

} // namespace cirrava
