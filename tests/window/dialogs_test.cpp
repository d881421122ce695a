#include "window_fixture.h"

#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace cirrava {

namespace {

// The toolkit's real dialogs.
class RealDialogs : public testing::Test {
protected:
    static void type_name(QFileDialog& dialog, const QString& name) {
        auto* const edit = dialog.findChild<QLineEdit*>("fileNameEdit");
        ASSERT_NE(edit, nullptr);
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        edit->insert(name); // not by keys: a name may hold letters that no key sends
        QTest::keyClick(edit, Qt::Key_Return);
    }

    FileQuestion question() const {
        return {.title = "Create", .filter = "*.bmp", .folder = folder.path(), .name = "a.bmp"};
    }

    QWidget parent;
    Dialogs dialogs = toolkit_dialogs(parent);
    QTemporaryDir folder;
};

} // namespace

TEST_F(RealDialogs, AFileNameComesBackAsTyped) {
    for (const char* name : {"plain", "two words & more.bmp", "<b>bold</b>.bmp", "my \"best\".bmp",
                             "Wärme-λ-ж.bmp", "~~temp.bmp", "missing folder/a.bmp"}) {
        in_next<QFileDialog>([&](QFileDialog& dialog) { type_name(dialog, name); });
        EXPECT_EQ(dialogs.save(question()), folder.filePath(name));
        in_next<QFileDialog>([&](QFileDialog& dialog) { type_name(dialog, name); });
        EXPECT_EQ(dialogs.open(question()), folder.filePath(name));
    }
}

TEST_F(RealDialogs, AnExistingFileIsTakenWithoutAQuestion) {
    QFile file(folder.filePath("a.bmp"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    in_next<QFileDialog>([](QFileDialog& dialog) {
        QTest::keyClick(dialog.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.save(question()), file.fileName());
}

TEST_F(RealDialogs, EscapeCancelsAFileDialog) {
    in_next<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(dialogs.save(question()), std::nullopt);
}

TEST_F(RealDialogs, MessagesShowPlainTextAndYesIsTheDefault) {
    const QString text = "Write /tmp/<b>a</b> & \"b\".bmp?";
    in_next<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(box.text(), text);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), "Ready to create");
        EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::Yes));
        const auto* const label = box.findChild<QLabel*>("qt_msgbox_label");
        EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(text));
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_TRUE(dialogs.ask(text, "Ready to create"));
    in_next<QMessageBox>(
        [](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton); });
    EXPECT_FALSE(dialogs.ask(text, "Ready to create"));
    in_next<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "CirravaPal");
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        QTest::keyClick(&box, Qt::Key_Return);
    });
    dialogs.tell("Operation Cancelled");
}

} // namespace cirrava
