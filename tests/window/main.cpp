#include "ui/look.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setDesktopSettingsAware(false);
    QApplication application(argc, argv);
    cirrava::dress(application);
    return RUN_ALL_TESTS();
}
