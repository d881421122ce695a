#include "window_fixture.h"

#include "ui/help_texts.h"

#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScreen>

namespace cirrava {

namespace {

class OtherWindows : public WindowTest {
protected:
    // Presses `button` of the main window and does `action`, which closes it, in the window of that
    // title that opens. The main window takes no click meanwhile.
    void in_window_of(const char* button, const QString& title,
                      const std::function<void(QDialog&)>& action) {
        in_next<QDialog>([&](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), title);
            for (auto* const label : dialog.findChildren<QLabel*>())
                EXPECT_GE(label->height() + 2, label->heightForWidth(label->width()));
            const QPoint cell = thermal().pos() + inside(thermal(), 10);
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, cell);
            action(dialog);
            EXPECT_FALSE(dialog.isVisible());
        });
        press(button);
        EXPECT_EQ(box(1), "");
    }
};

} // namespace

TEST_F(OtherWindows, HelpOpensAtTheTopAndCannotBeChanged) {
    const auto read = [](QDialog& help) {
        auto& text = find_in<QPlainTextEdit>(help, "Text1");
        EXPECT_TRUE(text.hasFocus());
        EXPECT_EQ(text.verticalScrollBar()->value(), 0);
        const QString before = text.toPlainText();
        for (const Qt::Key key : {Qt::Key_A, Qt::Key_Delete, Qt::Key_Return, Qt::Key_Escape})
            QTest::keyClick(&text, key);
        EXPECT_TRUE(help.isVisible());
        QTest::keySequence(&text, QKeySequence::SelectAll);
        QTest::keySequence(&text, QKeySequence::Copy);
        EXPECT_EQ(QApplication::clipboard()->text(), before);
        QTest::keyClick(&text, Qt::Key_End, Qt::ControlModifier);
        QTest::keyClick(&text, Qt::Key_Tab);
        QTest::keyClick(help.focusWidget(), Qt::Key_Space);
    };
    in_window_of("Command4", "Cirrava PAL How To", read);
    in_window_of("hvc_help", "About HVC Palette", read);
}

TEST_F(OtherWindows, AboutClosesByEscAndEnter) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return})
        in_window_of("Command3", "About CirravaPal", [&](QDialog& about) {
            EXPECT_EQ(find_in<QLabel>(about, "lblVersion").text(), "Version 2.1.0");
            EXPECT_EQ(about.geometry().topLeft(), QPoint(156, 129));
            QTest::keyClick(about.focusWidget(), key);
        });
}

TEST_F(OtherWindows, SystemInfoStartsTheDesktopsProgramOrSaysThatThereIsNone) {
    const QByteArray search_path = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8());
    const auto write_program = [this](const QString& text) {
        QFile program(folder.filePath("mate-system-monitor"));
        EXPECT_TRUE(program.open(QIODevice::WriteOnly));
        program.write(text.toUtf8());
        program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    };
    in_window_of("Command3", "About CirravaPal", [&](QDialog& about) {
        QTest::keyClick(about.focusWidget(), Qt::Key_Tab);
        EXPECT_TRUE(find_in<Button>(about, "cmdSysInfo").isDefault());
        for (int time = 0; time < 2; ++time) { // there is none, then a broken one
            in_next<QMessageBox>([](QMessageBox& box) {
                EXPECT_EQ(box.text(), "System Information Is Unavailable At This Time");
            });
            QTest::keyClick(about.focusWidget(), Qt::Key_Return);
            write_program("no program");
        }
        write_program("#!/bin/sh\necho > '" + folder.filePath("started") + "'\n");
        find_in<Button>(about, "cmdSysInfo").click();
        EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(folder.filePath("started")); }));
        about.close();
    });
    qputenv("PATH", search_path);
}

// Qt's real dialogs.
TEST(RealDialogs, AFileNameComesBackAsTypedWithoutAQuestion) {
    QWidget parent;
    const Dialogs dialogs = qt_dialogs(parent);
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile::copy(CORPUS "/sea.bmp", folder.filePath("there.bmp")));
    for (const char* name :
         {"there.bmp", "<b>two words & more", "Wärme-λ-ж.bmp", "x/../missing/a.bmp"})
        for (const auto& choose : {dialogs.save, dialogs.open}) {
            in_next<QFileDialog>([&](QFileDialog& dialog) {
                auto& edit = find_in<QLineEdit>(dialog, "fileNameEdit");
                edit.clear();
                edit.insert(name); // not by keys: a name may hold letters that no key sends
                QTest::keyClick(&edit, Qt::Key_Return);
            });
            EXPECT_EQ(choose({"Create", "*.bmp", folder.path(), "a.bmp"}),
                      QDir::cleanPath(folder.filePath(name)));
        }
    in_next<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(dialogs.save({}), std::nullopt);
}

TEST(RealDialogs, MessagesShowPlainTextAndYesIsTheDefault) {
    QWidget parent;
    const Dialogs dialogs = qt_dialogs(parent);
    const QString text = "Write /tmp/<b>a</b> & \"" + QString(2000, 'b') + "\".bmp?";
    in_next<QMessageBox>([&](QMessageBox& box) {
        QTest::keySequence(&box, QKeySequence::Copy);
        EXPECT_EQ(QApplication::clipboard()->text(), text);
        auto& label = find_in<QLabel>(box, "qt_msgbox_label");
        EXPECT_GE(label.height(), label.heightForWidth(label.width()));
        EXPECT_EQ(label.accessibleName(), text);
        EXPECT_LT(box.width(), box.screen()->availableGeometry().width());
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), "Ready to create");
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_TRUE(dialogs.ask(text, "Ready to create"));
    in_next<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
    EXPECT_FALSE(dialogs.ask(text, ""));
    in_next<QMessageBox>([](QMessageBox& box) { EXPECT_EQ(box.windowTitle(), "CirravaPal"); });
    dialogs.tell("Operation Cancelled");
}

} // namespace cirrava
