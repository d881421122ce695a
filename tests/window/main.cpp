#include "ui/set_up.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    const QByteArray screen = qEnvironmentVariable("CIRRAVA_SCREEN", "large_screen").toUtf8();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCREENS "/" + screen + ".json");
    cirrava::set_up_process();
    QApplication application(argc, argv);
    cirrava::set_up_application(application);
    QApplication::setCursorFlashTime(0); // for pictures
    // Qt's warnings would fill a pipe that nobody reads.
    qInstallMessageHandler([](auto, auto&, auto& text) { ADD_FAILURE() << qPrintable(text); });
    return RUN_ALL_TESTS();
}
