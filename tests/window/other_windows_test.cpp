#include "window_fixture.h"

#include "ui/help_texts.h"

#include <QClipboard>
#include <QDialog>
#include <QFile>
#include <QMessageBox>
#include <QPlainTextEdit>

namespace cirrava {

namespace {

class OtherWindows : public WindowTest {
protected:
    // Presses `button` of the main window and does `action`, which closes it, in the window that
    // opens. The main window takes no click meanwhile.
    void in_window_of(const char* button, const std::function<void(QDialog&)>& action) {
        in_next<QDialog>([&, action](QDialog& dialog) {
            for (auto* const label : dialog.findChildren<QLabel*>())
                EXPECT_GE(label->height() + 2, label->heightForWidth(label->width()));
            const QPoint cell = thermal().pos() + inside(thermal(), 10);
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, cell);
            action(dialog);
            opened_ << dialog.windowTitle() + (dialog.isVisible() ? " is still open" : "");
            dialog.reject();
        });
        press(button);
        EXPECT_EQ(box(1), "");
    }

    QStringList opened_;
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
    for (const char* button : {"Command4", "hvc_help", "Command4"})
        in_window_of(button, read);
    EXPECT_EQ(opened_,
              (QStringList{"Cirrava PAL How To", "About HVC Palette", "Cirrava PAL How To"}));
}

TEST_F(OtherWindows, AboutClosesByEscAndEnter) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return})
        in_window_of("Command3", [&](QDialog& about) {
            EXPECT_EQ(find_in<QLabel>(about, "lblVersion").text(), "Version 2.1.0");
            EXPECT_EQ(about.geometry().topLeft(), QPoint(156, 129));
            EXPECT_TRUE(find_in<Button>(about, "cmdOK").isDefault());
            QTest::keyClick(about.focusWidget(), key);
        });
    EXPECT_EQ(opened_, QStringList(2, "About CirravaPal"));
}

TEST_F(OtherWindows, SystemInfoStartsTheDesktopsProgramOrSaysThatThereIsNone) {
    const QByteArray search_path = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8());
    in_window_of("Command3", [this](QDialog& about) {
        QString told;
        in_next<QMessageBox>([&](QMessageBox& box) {
            told = box.text();
            box.accept();
        });
        QTest::keyClick(about.focusWidget(), Qt::Key_Tab);
        EXPECT_TRUE(find_in<Button>(about, "cmdSysInfo").isDefault());
        QTest::keyClick(about.focusWidget(), Qt::Key_Return);
        EXPECT_EQ(told, "System Information Is Unavailable At This Time");

        QFile program(folder.filePath("mate-system-monitor"));
        EXPECT_TRUE(program.open(QIODevice::WriteOnly));
        program.write("#!/bin/sh\necho > '" + folder.filePath("started").toUtf8() + "'\n");
        program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        program.close();
        find_in<Button>(about, "cmdSysInfo").click();
        EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(folder.filePath("started")); }));
        about.close();
    });
    qputenv("PATH", search_path);
}

} // namespace cirrava
