#include "approved_picture.h"
#include "window_fixture.h"

#include <fstream>

namespace cirrava {

using OtherWindows = WindowTest;

TEST_F(OtherWindows, LeaveTheMainWindowAsItWas) {
    const std::tuple<const char*, const char*, const char*> windows[]{
        {"click Command4", "Cirrava PAL How To", "how_to"},
        {"click hvc_help", "About HVC Palette", "hvc_help"},
        {"click Command3", "About CirravaPal", "about"}};
    for (const auto& [open, title, picture] : windows) {
        find<Button>("color(9)").animateClick(); // a press that the window interrupts
        in_window_of(open, [&, title = title, picture = picture](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), title);
            EXPECT_EQ(dialog.minimumSize(), dialog.maximumSize());
            expect_as_approved(dialog, picture);
            // Other programs get at what is behind it.
            find<Button>("color(8)").animateClick(); // a press that ends while the window stands
            find<Slider>("HScroll2").setValue(7);
            auto& cell = *heard("Label2").child(5)->actionInterface();
            cell.doAction(cell.actionNames().first());
            QTest::qWait(200); // twice as long as a press takes to become a click
            find<Button>("color(7)").animateClick(); // a press that the window's end interrupts
        });
        QTest::qWait(200);
        EXPECT_EQ(text("Text1").trimmed(), "") << title;
        EXPECT_EQ(swatch(), Qt::black) << title;
        EXPECT_EQ(find<Slider>("HScroll2").value(), 0) << title;
        act("left thermal_char 5");
        EXPECT_EQ(text("Text1"), "-107.5") << title;
        act("click hvc_butt, click thermal_butt"); // which blanks the boxes
    }
}

TEST_F(OtherWindows, HelpOpensAtTheTopAndCannotBeChanged) {
    for (const char* open : {"click Command4", "click hvc_help"})
        in_window_of(open, [](QDialog& help) {
            auto& box = find_in<QPlainTextEdit>(help, "Text1");
            EXPECT_TRUE(box.hasFocus());
            EXPECT_EQ(box.verticalScrollBar()->value(), 0);
            const QString before = box.toPlainText();
            for (const Qt::Key key : {Qt::Key_A, Qt::Key_Delete, Qt::Key_Return, Qt::Key_Escape})
                QTest::keyClick(&box, key);
            EXPECT_TRUE(help.isVisible());
            QTest::keySequence(&box, QKeySequence::SelectAll);
            QTest::keySequence(&box, QKeySequence::Copy);
            EXPECT_EQ(QApplication::clipboard()->text(), before);
            QTest::keyClick(&box, Qt::Key_Tab);
            QTest::keyClick(help.focusWidget(), Qt::Key_Space);
            EXPECT_FALSE(help.isVisible());
        });
}

TEST_F(OtherWindows, AboutStandsAtItsPlaceAndClosesByEnter) {
    in_window_of("click Command3", [](QDialog& about) {
        EXPECT_EQ(about.geometry().topLeft(), QPoint(156, 129));
        QTest::keyClick(about.focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(about.isVisible());
    });
}

TEST_F(OtherWindows, SystemInfoStartsTheDesktopsProgramOrSaysThatThereIsNone) {
    in_window_of("click Command3", [](QDialog& about) {
        auto& system_info = find_in<Button>(about, "cmdSysInfo");
        in_window<QDialog>([&] { system_info.click(); },
                           [](QDialog& box) {
                               EXPECT_EQ(box.findChild<QLabel*>()->text(),
                                         "System Information Is Unavailable At This Time");
                           });
        std::ofstream("mate-system-monitor") << "#!/bin/sh\n>started";
        QFile::setPermissions("mate-system-monitor", QFile::ReadOwner | QFile::ExeOwner);
        system_info.click();
        EXPECT_TRUE(QTest::qWaitFor([] { return QFile::exists("started"); }));
    });
}

// Qt's real dialogs.
class RealDialogs : public testing::Test {
protected:
    QWidget parent;
    const Dialogs dialogs = qt_dialogs(parent, "/usr"); // as the folder of examples
};

TEST_F(RealDialogs, TheColourDialogOpensAtTheColour) {
    std::optional<QColor> chosen = Qt::red;
    const auto open = [&] { chosen = dialogs.colour(Qt::red); };
    in_window<QColorDialog>(open, [](QColorDialog& dialog) {
        EXPECT_EQ(dialog.currentColor(), Qt::red);
        EXPECT_FALSE(dialog.testOption(QColorDialog::ShowAlphaChannel));
    });
    EXPECT_FALSE(chosen); // cancelled
}

TEST_F(RealDialogs, FilesAreChosenByName) {
    for (const auto& choose : {dialogs.open, dialogs.save})
        for (const QString name : {"b.bmp", "qu\"ote.bmp"}) {
            std::optional<QString> chosen;
            const auto open = [&] { chosen = choose({"Title", "*.bmp", "/tmp", "a.bmp"}); };
            in_window<QFileDialog>(open, [&name](QFileDialog& dialog) {
                EXPECT_EQ(dialog.selectedFiles(), QStringList("/tmp/a.bmp"));
                auto& box = *dialog.findChild<QLineEdit*>();
                box.setText("none/../" + name);
                QTest::keyClick(&box, Qt::Key_Return);
            });
            EXPECT_EQ(chosen, "/tmp/" + name);
        }
}

TEST_F(RealDialogs, FilesAreShownByTheirWholeNamesAndNotMoved) {
    const QTemporaryDir folder;
    const QString long_name = QString(60, 'a') + ".bmp";
    EXPECT_TRUE(QFile(folder.filePath(long_name)).open(QIODevice::WriteOnly));
    for (const auto& choose : {dialogs.open, dialogs.save}) {
        const auto open = [&] { choose({"Title", "*.bmp", folder.path(), ""}); };
        in_window<QFileDialog>(open, [&](QFileDialog& dialog) {
            const bool opens = dialog.acceptMode() == QFileDialog::AcceptOpen;
            EXPECT_EQ(dialog.testOption(QFileDialog::ReadOnly), opens);
            EXPECT_EQ(dialog.labelText(QFileDialog::LookIn), opens ? "Look in:" : "Save in:");
            EXPECT_EQ(dialog.sidebarUrls()[0].toLocalFile(),
                      opens ? "/usr" : QCoreApplication::applicationDirPath());
            EXPECT_EQ(dialog.nameFilters(), (QStringList{"*.bmp", "All files (*)"}));
            EXPECT_EQ(dialog.iconProvider()->type(QFileInfo("/bin/sh")), // is not looked into
                      dialog.iconProvider()->type(QFileInfo("none")));
            const auto& files = *dialog.findChild<QTreeView*>();
            const int width = files.fontMetrics().horizontalAdvance(long_name);
            EXPECT_TRUE(QTest::qWaitFor([&] { return files.columnWidth(0) > width; }));
            for (const auto* view : dialog.findChildren<QAbstractItemView*>())
                EXPECT_FALSE(view->dragEnabled() || view->viewport()->acceptDrops());
        });
    }
}

TEST_F(RealDialogs, MessagesShowPlainTextAndYesIsTheDefault) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Y, Qt::Key_N, Qt::Key_Escape}) {
        // Another one each time, so that it is not in the clipboard yet.
        const QString text = QString::number(key) + " <b>a</b> & \"" + QString(2000, 'b') + "\"?";
        bool yes = false;
        in_window<QDialog>([&] { yes = dialogs.ask(text, ""); },
                           [&](QDialog& box) {
                               QTest::keySequence(&box, QKeySequence::Copy);
                               EXPECT_EQ(QApplication::clipboard()->text(), text);
                               EXPECT_EQ(box.findChild<QLabel*>()->accessibleName(), text);
                               EXPECT_LT(box.width(), box.screen()->availableGeometry().width());
                               QTest::keyClick(&box, key);
                               EXPECT_FALSE(box.isVisible());
                           });
        EXPECT_EQ(yes, key == Qt::Key_Return || key == Qt::Key_Y);
    }
    in_window<QDialog>([&] { dialogs.ask("Write /<b>a</b>.bmp?", "Ready to create"); },
                       [](QDialog& box) { expect_as_approved(box, "question"); });
    in_window<QDialog>([&] { dialogs.tell("Operation Cancelled"); },
                       [](QDialog& box) {
                           EXPECT_EQ(box.windowTitle(), "CirravaPal");
                           EXPECT_EQ(QAccessible::queryAccessibleInterface(&box)->role(),
                                     QAccessible::AlertMessage);
                           QTest::keyClick(&box, Qt::Key_O);
                           EXPECT_FALSE(box.isVisible());
                       });
}

} // namespace cirrava
