#include "window_fixture.h"

#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScreen>

namespace cirrava {

namespace {

void write_program(const QString& path, const char* script) {
    QFile program(path);
    EXPECT_TRUE(program.open(QIODevice::WriteOnly) && program.write(script) > 0);
    EXPECT_TRUE(program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

class OtherWindows : public WindowTest {
protected:
    // Does `action`, which closes it, in the window of that title that opens by `open`. The main
    // window takes no click meanwhile.
    void in_window(const QString& title, const char* open,
                   const std::function<void(QDialog&)>& action) {
        in_next<QDialog>([&](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), title);
            EXPECT_EQ(dialog.minimumSize(), dialog.maximumSize());
            for (auto* const label : dialog.findChildren<QLabel*>())
                EXPECT_GE(label->height() + 2, label->heightForWidth(label->width()));
            act("left thermal_char 10");
            action(dialog);
            EXPECT_FALSE(dialog.isVisible());
        });
        act(open);
        EXPECT_EQ(text("Text1"), "");
    }
};

} // namespace

TEST_F(OtherWindows, HelpOpensAtTheTopAndCannotBeChanged) {
    const auto read = [](QDialog& help) {
        auto& box = find_in<QPlainTextEdit>(help, "Text1");
        EXPECT_TRUE(box.hasFocus());
        EXPECT_EQ(box.verticalScrollBar()->value(), 0);
        const QString before = box.toPlainText();
        EXPECT_TRUE(before.contains("temperature")) << before.toStdString();
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
            EXPECT_EQ(text("lblTitle"), "CirravaPal");
            EXPECT_EQ(text("lblVersion"), "Version 2.1.0");
            EXPECT_TRUE(text("lblDescription").contains("requirements,  in Thermal"));
            EXPECT_TRUE(text("lblDisclaimer").endsWith("Good luck"));
            EXPECT_EQ(about.geometry().topLeft(), QPoint(156, 129));
            QTest::keyClick(about.focusWidget(), key);
        });
}

TEST_F(OtherWindows, SystemInfoStartsTheDesktopsProgramOrSaysThatThereIsNone) {
    const QByteArray search_path = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8());
    in_window("About CirravaPal", "click Command3", [this](QDialog& about) {
        QTest::keyClick(about.focusWidget(), Qt::Key_Tab);
        const QString program = folder.filePath("mate-system-monitor");
        for (const bool broken : {false, true}) { // first there is none
            if (broken)
                write_program(program, "no program");
            in_next<QMessageBox>([](QMessageBox& box) {
                EXPECT_EQ(box.text(), "System Information Is Unavailable At This Time");
            });
            QTest::keyClick(about.focusWidget(), Qt::Key_Return);
        }
        write_program(program, "#!/bin/sh\necho > started\n");
        QTest::keyClick(about.focusWidget(), Qt::Key_Return);
        EXPECT_TRUE(QTest::qWaitFor([] { return QFile::exists("started"); }));
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
    for (const char* name : {"there.bmp", "<b>two & Wärme-λ-ж", "x/../missing/a.bmp"})
        for (const auto& choose : {dialogs.save, dialogs.open}) {
            in_next<QFileDialog>([name](QFileDialog& dialog) {
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
        EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
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
