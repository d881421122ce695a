#include "ui/set_up.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCREENS "/large_screen.json");
    cirrava::set_up_process();
    QApplication application(argc, argv);
    cirrava::set_up_application(application);
    QApplication::setCursorFlashTime(0); // for pictures
    return RUN_ALL_TESTS();
}
