#include "platform/file_system.h"
#include "ui/look.h"

#include <QApplication>
#include <QSettings>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    cirrava::let_writes_past_size_limit_fail();
    QApplication::setDesktopSettingsAware(false);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ":/"); // nothing is kept
    QApplication application(argc, argv);
    cirrava::set_program_look(application);
    return RUN_ALL_TESTS();
}
