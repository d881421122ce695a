#include "window_fixture.h"

namespace cirrava {

class OtherWindows : public WindowTest {
protected:
    // Does `action`, which closes it, in the window of that title that opens by `open`. The main
    // window takes nothing from other programs meanwhile, nor of it later.
    void in_window(const QString& title, const char* open,
                   const std::function<void(QDialog&)>& action) {
        in_next<QDialog>([&](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), title);
            EXPECT_EQ(dialog.minimumSize(), dialog.maximumSize());
            for (auto* const label : dialog.findChildren<QLabel*>())
                EXPECT_GE(label->height() + 2, label->heightForWidth(label->width()));
            for (const char* preset : {"color(8)", "color(9)"}) // which is down already
                find<Button>(preset).animateClick();
            find<Slider>("HScroll2").setValue(7);
            emit sea().marked(5, Side::start);
            action(dialog);
            EXPECT_FALSE(dialog.isVisible());
        });
        find<Button>("color(9)").animateClick();
        act(open);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !find<Button>("color(9)").isDown(); }));
        EXPECT_EQ(text("Text1") + text("Label5") + swatch().name(), "Thermal#000000");
        EXPECT_EQ(find<Slider>("HScroll2").value(), 0);
    }
};

TEST_F(OtherWindows, HelpOpensAtTheTopAndCannotBeChanged) {
    const auto read = [](QDialog& help) {
        auto& box = find_in<QPlainTextEdit>(help, "Text1");
        EXPECT_TRUE(box.hasFocus());
        EXPECT_EQ(box.verticalScrollBar()->value(), 0);
        const QString before = box.toPlainText();
        EXPECT_TRUE(before.contains(help.objectName() == "palhelp" ? "In Future" : "dimensional"));
        for (const Qt::Key key : {Qt::Key_A, Qt::Key_Delete, Qt::Key_Return, Qt::Key_Escape})
            QTest::keyClick(&box, key);
        EXPECT_TRUE(help.isVisible());
        QTest::keySequence(&box, QKeySequence::SelectAll);
        QTest::keySequence(&box, QKeySequence::Copy);
        EXPECT_EQ(QApplication::clipboard()->text(), before);
        QTest::keyClick(&box, Qt::Key_Tab);
        QTest::keyClick(help.focusWidget(), Qt::Key_Space);
    };
    in_window("Cirrava PAL How To", "click Command4", read);
    in_window("About HVC Palette", "click hvc_help", read);
}

TEST_F(OtherWindows, AboutClosesByEscAndEnter) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return})
        in_window("About CirravaPal", "click Command3", [key](QDialog& about) {
            const auto text = [&](const char* name) { return find_in<QLabel>(about, name).text(); };
            EXPECT_EQ(text("lblVersion") + text("Label1"), "Version 2.1.0Quillmark");
            EXPECT_TRUE(text("lblDescription").contains("requirements,  in Thermal"));
            EXPECT_TRUE(text("lblDisclaimer").endsWith("Good luck"));
            EXPECT_EQ(about.geometry().topLeft(), QPoint(156, 129));
            QTest::keyClick(about.focusWidget(), key);
        });
}

TEST_F(OtherWindows, SystemInfoStartsTheDesktopsProgramOrSaysThatThereIsNone) {
    const QByteArray search_path = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8());
    in_window("About CirravaPal", "click Command3", [](QDialog& about) {
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
        about.close();
    });
    qputenv("PATH", search_path);
}

// Qt's real dialogs; those for files are used in the tour.
TEST(RealDialogs, TheColourDialogOpensAtTheColour) {
    QWidget parent;
    in_next<QColorDialog>([](auto& dialog) { EXPECT_EQ(dialog.currentColor(), Qt::red); });
    EXPECT_FALSE(qt_dialogs(parent).colour(Qt::red)); // cancelled
}

TEST(RealDialogs, FilesAreProposedAndNotMovedInThem) {
    QWidget parent;
    const Dialogs dialogs = qt_dialogs(parent);
    for (const auto& choose : {dialogs.open, dialogs.save}) {
        in_next<QFileDialog>([](QFileDialog& dialog) {
            EXPECT_EQ(dialog.testOption(QFileDialog::ReadOnly),
                      dialog.acceptMode() == QFileDialog::AcceptOpen);
            for (const auto* view : dialog.findChildren<QAbstractItemView*>())
                EXPECT_FALSE(view->dragEnabled() || view->viewport()->acceptDrops());
            EXPECT_EQ(dialog.iconProvider()->type(QFileInfo("/bin/sh")),
                      dialog.iconProvider()->type(QFileInfo("none")));
            EXPECT_EQ(dialog.nameFilters(), (QStringList{"*.bmp", "All files (*)"}));
            EXPECT_EQ(dialog.selectedFiles(), QStringList("/tmp/a.bmp"));
        });
        EXPECT_FALSE(choose({"Title", "*.bmp", "/tmp", "a.bmp"}));
    }
}

TEST(RealDialogs, MessagesShowPlainTextAndYesIsTheDefault) {
    QWidget parent;
    const Dialogs dialogs = qt_dialogs(parent);
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
