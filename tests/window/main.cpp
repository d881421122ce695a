#include "ui/look.h"
#include "ui/set_up_process.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    cirrava::set_up_process();
    QApplication application(argc, argv);
    cirrava::set_program_look(application);
    return RUN_ALL_TESTS();
}
