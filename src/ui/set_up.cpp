#include "ui/set_up.h"

#include "platform/file_system.h"
#include "ui/cirrava.h"
#include "ui/look.h"
#include "widgets/double_click.h"
#include "widgets/held_enter.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QLocale>
#include <QLoggingCategory>
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
    // Qt's warnings, of faults in an image for instance, would hold the program where nobody reads
    // its standard error. QT_LOGGING_RULES brings them back.
    QLoggingCategory::setFilterRules("*=false");
    set_program_look(application);
    ignore_held_enter(application);
    ignore_split_double_clicks(application);
    // A QMainWindow would need no factory, but a third of a MiB more.
    QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
        auto* const window = dynamic_cast<Cirrava*>(object);
        return window != nullptr ? new QAccessibleWidget(window, QAccessible::Window) : nullptr;
    });
}

} // namespace cirrava
