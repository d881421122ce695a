#include "ui/set_up_process.h"

#include "platform/file_system.h"

#include <QApplication>
#include <QSettings>

namespace cirrava {

void set_up_process() {
    let_writes_past_size_limit_fail();
    QApplication::setDesktopSettingsAware(false);
    // Nothing is kept between runs: Qt's dialogs find nowhere for their histories. On Windows it
    // takes the Qt that packaging/windows builds.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ":/");
}

} // namespace cirrava
