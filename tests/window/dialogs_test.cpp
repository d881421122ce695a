#include "window_fixture.h"

#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QScreen>

namespace cirrava {

// Qt's real dialogs.
TEST(RealDialogs, AFileNameComesBackAsTypedWithoutAQuestion) {
    QWidget parent;
    const Dialogs dialogs = qt_dialogs(parent);
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile::copy(CORPUS "/sea.bmp", folder.filePath("there.bmp")));
    for (const char* name : {"there.bmp", "plain", "two words & more.bmp", "<b>bold</b>.bmp",
                             "my \"best\".bmp", "Wärme-λ-ж.bmp", "missing folder/a.bmp"})
        for (const auto& choose : {dialogs.save, dialogs.open}) {
            in_next<QFileDialog>([&](QFileDialog& dialog) {
                auto& edit = find_in<QLineEdit>(dialog, "fileNameEdit");
                edit.clear();
                edit.insert(name); // not by keys: a name may hold letters that no key sends
                QTest::keyClick(&edit, Qt::Key_Return);
            });
            EXPECT_EQ(choose({"Create", "*.bmp", folder.path(), "a.bmp"}), folder.filePath(name));
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
        EXPECT_LT(box.width(), box.screen()->availableGeometry().width());
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), "Ready to create");
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_TRUE(dialogs.ask(text, "Ready to create"));
    in_next<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
    EXPECT_FALSE(dialogs.ask(text, ""));
    in_next<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "CirravaPal");
        box.button(QMessageBox::Ok)->click();
    });
    dialogs.tell("Operation Cancelled");
}

} // namespace cirrava
