#include "window_fixture.h"

namespace cirrava {

using OtherWindows = WindowTest;

TEST_F(OtherWindows, LeaveTheMainWindowAsItWas) {
    for (const auto& [title, open] : {std::pair("Cirrava PAL How To", "click Command4"),
                                      {"About HVC Palette", "click hvc_help"},
                                      {"About CirravaPal", "press Text1 F3, click Command3"}}) {
        in_next<QDialog>([this, title](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), title);
            EXPECT_EQ(dialog.minimumSize(), dialog.maximumSize());
            // Other programs get at what is behind it.
            for (const char* preset : {"color(8)", "color(9)"})
                find<Button>(preset).animateClick();
            find<Slider>("HScroll2").setValue(7);
            heard("Label2").child(5)->actionInterface()->doAction("mark as start");
        });
        find<Button>("color(9)").animateClick(); // and press what is not yet behind it
        act(open);
        QTest::qWait(200); // twice as long as a press takes to become a click
        EXPECT_EQ(text("Text1").trimmed() + swatch().name(), "#000000") << title;
        EXPECT_EQ(find<Slider>("HScroll2").value(), 0) << title;
        act("left thermal_char 5");
        EXPECT_EQ(text("Text1"), "-107.5") << title;
        act("click hvc_butt");
    }
}

TEST_F(OtherWindows, HelpOpensAtTheTopAndCannotBeChanged) {
    for (const auto& [open, words] :
         {std::pair("click Command4", "In Future versions"), {"click hvc_help", "dimensional"}}) {
        in_next<QDialog>([words](QDialog& help) {
            auto& box = find_in<QPlainTextEdit>(help, "Text1");
            EXPECT_TRUE(box.hasFocus());
            EXPECT_EQ(box.verticalScrollBar()->value(), 0);
            const QString before = box.toPlainText();
            EXPECT_TRUE(before.contains(words));
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
        act(open);
    }
}

TEST_F(OtherWindows, AboutClosesByEscAndEnter) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        in_next<QDialog>([key](QDialog& about) {
            const auto text = [&](const char* name) { return find_in<QLabel>(about, name).text(); };
            EXPECT_EQ(text("lblVersion") + text("Label1"), "Version 2.1.0Quillmark");
            EXPECT_TRUE(text("lblDescription").contains("requirements,  in Thermal"));
            EXPECT_TRUE(text("lblDisclaimer").endsWith("Good luck"));
            EXPECT_EQ(about.geometry().topLeft(), QPoint(156, 129));
            QTest::keyClick(about.focusWidget(), key);
            EXPECT_FALSE(about.isVisible());
        });
        act("click Command3");
    }
}

TEST_F(OtherWindows, SystemInfoStartsTheDesktopsProgramOrSaysThatThereIsNone) {
    const QByteArray search_path = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8());
    in_next<QDialog>([](QDialog& about) {
        in_next<QDialog>([&about](QDialog& box) {
            find_in<Button>(about, "cmdOK").animateClick();
            EXPECT_FALSE(QTest::qWaitFor([&about] { return !about.isVisible(); }, 200));
            EXPECT_EQ(box.findChild<QLabel*>()->text(),
                      "System Information Is Unavailable At This Time");
        });
        QTest::keyClick(about.focusWidget(), Qt::Key_Tab);
        QTest::keyClick(about.focusWidget(), Qt::Key_Return);
        QFile program("mate-system-monitor");
        EXPECT_TRUE(program.open(QIODevice::WriteOnly, QFile::ReadOwner | QFile::ExeOwner) &&
                    program.write("#!/bin/sh\n>started") > 0);
        program.close();
        find_in<Button>(about, "cmdSysInfo").animateClick();
        EXPECT_TRUE(QTest::qWaitFor([] { return QFile::exists("started"); }));
    });
    act("click Command3");
    qputenv("PATH", search_path);
}

// Qt's real dialogs.
class RealDialogs : public testing::Test {
protected:
    QWidget parent;
    const Dialogs dialogs = qt_dialogs(parent);
};

TEST_F(RealDialogs, TheColourDialogOpensAtTheColour) {
    in_next<QColorDialog>([](QColorDialog& dialog) {
        EXPECT_EQ(dialog.currentColor(), Qt::red);
        EXPECT_FALSE(dialog.testOption(QColorDialog::ShowAlphaChannel));
    });
    EXPECT_FALSE(dialogs.colour(Qt::red)); // cancelled
}

TEST_F(RealDialogs, FilesAreChosenByNameAndNotMovedInThem) {
    const QTemporaryDir folder;
    const QString long_name = QString(60, 'a') + ".bmp";
    QFile(folder.filePath(long_name)).open(QIODevice::WriteOnly);
    for (const auto& choose : {dialogs.open, dialogs.save})
        for (const auto& [typed, path] : {std::pair("b.bmp", "/b.bmp"),
                                          {"none/../b.bmp", "/b.bmp"},
                                          {"qu\"ote.bmp", "/qu\"ote.bmp"}}) {
            in_next<QFileDialog>([&, typed](QFileDialog& dialog) {
                EXPECT_EQ(dialog.testOption(QFileDialog::ReadOnly),
                          dialog.acceptMode() == QFileDialog::AcceptOpen);
                auto& files = *dialog.findChild<QTreeView*>();
                EXPECT_TRUE(QTest::qWaitFor(
                    [&files] { return files.model()->rowCount(files.rootIndex()); }));
                EXPECT_GE(files.columnWidth(0), files.fontMetrics().horizontalAdvance(long_name));
                for (const auto* view : dialog.findChildren<QAbstractItemView*>())
                    EXPECT_FALSE(view->dragEnabled() || view->viewport()->acceptDrops());
                EXPECT_EQ(dialog.iconProvider()->type(QFileInfo("/bin/sh")),
                          dialog.iconProvider()->type(QFileInfo("none")));
                EXPECT_EQ(dialog.nameFilters(), (QStringList{"*.bmp", "All files (*)"}));
                EXPECT_TRUE(dialog.sidebarUrls().contains(QUrl::fromLocalFile(QDir::homePath())));
                EXPECT_EQ(dialog.selectedFiles(), QStringList(folder.filePath("a.bmp")));
                dialog.findChild<QLineEdit*>()->setText(typed);
                QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
            });
            EXPECT_EQ(choose({"Title", "*.bmp", folder.path(), "a.bmp"}), folder.path() + path);
        }
}

TEST_F(RealDialogs, MessagesShowPlainTextAndYesIsTheDefault) {
    const QString text = "Write /tmp/<b>a</b> & \"" + QString(2000, 'b') + "\".bmp?";
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Y, Qt::Key_N, Qt::Key_Escape}) {
        in_next<QDialog>([&](QDialog& box) {
            QTest::keySequence(&box, QKeySequence::Copy);
            EXPECT_EQ(QApplication::clipboard()->text(), text);
            const auto& label = *box.findChild<QLabel*>();
            EXPECT_GE(label.height(), label.heightForWidth(label.width()));
            EXPECT_EQ(label.accessibleName(), text);
            EXPECT_EQ(label.textFormat(), Qt::PlainText);
            EXPECT_LT(box.width(), box.screen()->availableGeometry().width());
            QTest::keyClick(&box, key);
            EXPECT_FALSE(box.isVisible());
        });
        EXPECT_EQ(dialogs.ask(text, ""), key == Qt::Key_Return || key == Qt::Key_Y);
    }
    in_next<QDialog>([](QDialog& box) {
        EXPECT_EQ(box.windowTitle(), "CirravaPal");
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&box)->role(), QAccessible::AlertMessage);
        QTest::keyClick(&box, Qt::Key_O);
        EXPECT_FALSE(box.isVisible());
    });
    dialogs.tell("Operation Cancelled");
}

} // namespace cirrava
