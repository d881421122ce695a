#include "ui/look.h"

#include <QApplication>
#include <QSettings>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setDesktopSettingsAware(false);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ":/"); // nothing is kept
    QApplication application(argc, argv);
    cirrava::dress(application);
    return RUN_ALL_TESTS();
}
