#include "window_fixture.h"

#include "ui/help_texts.h"

#include <QClipboard>
#include <QDialog>
#include <QFile>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <sys/wait.h>

namespace cirrava {

namespace {

class OtherWindows : public WindowTest {
protected:
    // Presses `button` of the main window and does `action` in the window that opens.
    void in_window_of(const char* button, const std::function<void(QDialog&)>& action) {
        bool opened = false;
        in_next<QDialog>([&](QDialog& dialog) {
            opened = true;
            action(dialog);
        });
        press(button);
        EXPECT_TRUE(opened);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "the window is still open";
    }

    template <class Control> static Control& part(QDialog& dialog, const char* name) {
        auto* const control = dialog.findChild<Control*>(name);
        if (control == nullptr)
            throw std::runtime_error(name);
        return *control;
    }

    static void close_by(QDialog& dialog, const char* button) {
        QTest::mouseClick(&part<Button>(dialog, button), Qt::LeftButton);
    }

    static void expect_captions_fit(QDialog& dialog) {
        for (const auto* label : dialog.findChildren<QLabel*>()) {
            if (label->text().isEmpty())
                continue;
            const QRect box = label->contentsRect();
            const QRect endless(0, 0, box.width(), 10'000);
            const QSize room =
                label->fontMetrics().boundingRect(endless, Qt::TextWordWrap, label->text()).size();
            EXPECT_LE(room.height(), box.height()) << label->text().toStdString();
            EXPECT_LE(room.width(), box.width()) << label->text().toStdString();
        }
    }
};

} // namespace

TEST_F(OtherWindows, HelpOpensAtTheTopAndCannotBeChanged) {
    for (int opening = 0; opening < 2; ++opening)
        in_window_of("Command4", [](QDialog& help) {
            EXPECT_EQ(help.windowTitle(), "Cirrava PAL How To");
            auto& text = part<QPlainTextEdit>(help, "Text1");
            EXPECT_TRUE(text.hasFocus());
            EXPECT_EQ(text.verticalScrollBar()->value(), 0);
            EXPECT_GT(text.verticalScrollBar()->maximum(), 0);

            QTest::keyClicks(&text, "typed");
            QTest::keyClick(&text, Qt::Key_Delete);
            QTest::keyClick(&text, Qt::Key_Return);
            QTest::keyClick(&text, Qt::Key_Escape);
            EXPECT_EQ(text.toPlainText(), how_to_use_text);
            EXPECT_TRUE(help.isVisible());
            QTest::keySequence(&text, QKeySequence::SelectAll);
            QTest::keySequence(&text, QKeySequence::Copy);
            EXPECT_EQ(QApplication::clipboard()->text(), how_to_use_text);
            QTest::keyClick(&text, Qt::Key_End, Qt::ControlModifier);
            EXPECT_GT(text.verticalScrollBar()->value(), 0);

            QTest::keyClick(&text, Qt::Key_Tab);
            EXPECT_TRUE(part<Button>(help, "Command1").hasFocus());
            QTest::keyClick(&part<Button>(help, "Command1"), Qt::Key_Tab);
            EXPECT_TRUE(text.hasFocus());
            close_by(help, "Command1");
        });
}

TEST_F(OtherWindows, TheMainWindowTakesNoClickWhileAnotherIsOpen) {
    const auto click_through_the_system = [this](QPoint place) {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
    };
    const QPoint cell = thermal().pos() + middle_of(thermal(), 10);
    for (const char* button : {"Command3", "Command4", "hvc_help"})
        in_window_of(button, [&](QDialog& dialog) {
            expect_captions_fit(dialog);
            click_through_the_system(cell);
            EXPECT_EQ(box(1), "");
            dialog.close();
        });
    click_through_the_system(cell);
    EXPECT_EQ(box(1), "-105.0");
}

TEST_F(OtherWindows, AboutClosesByEscEnterAndButton) {
    const std::function<void(QDialog&)> ways[]{
        [](QDialog& about) { QTest::keyClick(&about, Qt::Key_Escape); },
        [](QDialog& about) { QTest::keyClick(about.focusWidget(), Qt::Key_Return); },
        [](QDialog& about) { close_by(about, "cmdOK"); },
    };
    for (const auto& way : ways)
        in_window_of("Command3", [&](QDialog& about) {
            EXPECT_EQ(about.windowTitle(), "About CirravaPal");
            EXPECT_EQ(part<QLabel>(about, "lblTitle").text(), "CirravaPal");
            EXPECT_EQ(part<QLabel>(about, "lblVersion").text(), "Version 2.1.0");
            EXPECT_EQ(about.geometry().topLeft(), QPoint(156, 129));
            EXPECT_TRUE(part<Button>(about, "cmdOK").hasFocus());
            way(about);
        });
}

TEST_F(OtherWindows, SystemInfoStartsTheDesktopsProgramOrSaysThatThereIsNone) {
    const QByteArray search_path = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8());
    const auto press_system_info = [](QDialog& about) { close_by(about, "cmdSysInfo"); };

    QString told;
    in_window_of("Command3", [&](QDialog& about) {
        in_next<QMessageBox>([&](QMessageBox& box) {
            told = box.text();
            box.accept();
        });
        press_system_info(about);
        EXPECT_TRUE(about.isVisible());
        about.close();
    });
    EXPECT_EQ(told, "System Information Is Unavailable At This Time");

    const QString mark = folder.filePath("started");
    QFile program(folder.filePath("mate-system-monitor"));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\necho > '" + mark.toUtf8() + "'\n");
    program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    program.close();
    in_window_of("Command3", [&](QDialog& about) {
        press_system_info(about);
        EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(mark); }));
        about.close();
    });
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child of the program is left";
    qputenv("PATH", search_path);
}

} // namespace cirrava
