#include "window_fixture.h"

#include <QFile>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace cirrava {

namespace {

// Does `action` while a limit of the process is lowered.
void with_limit(decltype(RLIMIT_FSIZE) resource, rlim_t value,
                const std::function<void()>& action) {
    rlimit before{};
    getrlimit(resource, &before);
    const rlimit lowered{.rlim_cur = value, .rlim_max = before.rlim_max};
    setrlimit(resource, &lowered);
    action();
    setrlimit(resource, &before);
}

class Faults : public WindowTest {
protected:
    Faults() {
        select(thermal(), 10, 20);
        apply(9);
        select(hvc(), 5, 50);
        apply(20);
    }

    QString make(const char* name, mode_t mode) const {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        chmod(file.fileName().toUtf8(), mode);
        return file.fileName();
    }

    // Does what `button` does with the file, and expects a message and nothing else.
    void expect_told(const QString& button, const QString& file, const QString& message) {
        SCOPED_TRACE((button + ": " + file).toStdString());
        user.path = file;
        const QImage picture = window.grab().toImage();
        press(button);
        EXPECT_EQ(user.heard.takeLast(), message);
        EXPECT_TRUE(window.grab().toImage() == picture);
        for (const QFileInfo& open : QDir("/proc/self/fd").entryInfoList())
            EXPECT_FALSE(open.symLinkTarget().startsWith(folder.path()));
    }

    // Failure numbers; 0 where there is nothing to try.
    void expect_numbers(const QString& file, int writing, int reading) {
        const QString number = QString::number(writing) + " A problem occured during file creation";
        for (const QString scale : {"thermal", "Sea", "hvc"}) {
            press(scale + "_butt");
            const QString start = scale == "thermal" ? "Error# " : "Error # ";
            if (writing != 0)
                expect_told(scale.toLower() + "_command", file, start + number);
        }
        if (reading != 0)
            expect_told("Command5", file, QString("Error # %1 Cannot Read File").arg(reading));
    }
};

} // namespace

TEST_F(Faults, OfANameAreToldByNumberAndChangeNothing) {
    const QString pipe = folder.filePath("pipe");
    ASSERT_EQ(mkfifo(pipe.toUtf8(), 0666), 0);
    expect_numbers("", 0, 52);
    expect_numbers(folder.filePath(QString(300, 'a')), 52, 52);
    expect_numbers(folder.filePath("missing.bmp"), 0, 53);
    expect_numbers(folder.filePath("no folder/a.bmp"), 76, 76);
    expect_numbers(make("file", 0644) + "/a.bmp", 76, 76);
    for (const QString& no_file : {folder.path(), pipe, QString("/dev/null")})
        expect_numbers(no_file, 75, 75);

    user.path = make(".hidden.bmp", 0644); // does not count as there
    press("hvc_command");
    EXPECT_TRUE(user.heard.last().contains("Write ")) << user.heard.last().toStdString();
}

TEST_F(Faults, OfPermissionAreToldByNumberAndChangeNothing) {
    const QString read_only = make("read-only.bmp", 0444);
    const QString secret = make("secret.bmp", 0200);
    const QTemporaryDir documents;
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", documents.path().toUtf8());
    chmod(documents.path().toUtf8(), 0777);
    chmod(folder.path().toUtf8(), 0555);
    const bool root = geteuid() == 0; // whom permissions do not bind
    ASSERT_TRUE(!root || setresuid(65534, 65534, 0) == 0);
    expect_numbers(read_only, 75, 0);
    expect_numbers(secret, 0, 75);
    expect_numbers(folder.filePath("new.bmp"), 75, 53);
    const Dialogs dialogs = user.dialogs();
    CommonDialog dialog(dialogs);
    dialog.CancelError = true;
    dialog.InitDir = folder.path();
    dialog.ShowSave();
    EXPECT_TRUE(user.heard.last().endsWith(" in " + documents.path()));
    ASSERT_TRUE(!root || setresuid(0, 0, 0) == 0);
    chmod(folder.path().toUtf8(), 0755);
    qputenv("HOME", home);
}

TEST_F(Faults, OfAFullDiskAndOfTooManyFilesAreToldByNumber) {
    const QString file = make("a.bmp", 0644);
    with_limit(RLIMIT_FSIZE, 50, [&] {
        expect_numbers(file, 61, 0);
        brightness().setValue(6);
        EXPECT_EQ(hvc().colour(5), RGB(255, 255, 0)); // not even the headers fit
    });
    with_limit(RLIMIT_FSIZE, 76'853, [&] { // all but the last byte fits
        brightness().setValue(4);
        EXPECT_EQ(user.heard.last(), "Error # 61 A problem occured during file creation");
        EXPECT_EQ(hvc().colour(5), RGB(250, 250, 0));
    });
#ifndef __SANITIZE_ADDRESS__ // the sanitizer needs files of its own
    with_limit(RLIMIT_NOFILE, 3, [&] { expect_numbers(file, 0, 67); });
#endif
    press("hvc_command"); // and when the circumstances are better, so is the outcome
    EXPECT_EQ(QFile(file).size(), 76854);
}

TEST_F(Faults, ARemovedCurrentFolderFailsThePreviewOnly) {
    ASSERT_TRUE(QDir().mkdir("gone"));
    QDir::setCurrent("gone");
    ASSERT_TRUE(QDir(folder.path()).rmdir("gone"));
    const QString message = "Error # 76 A problem occured during file creation";
    brightness().setValue(7); // neither the shifted image nor the preview
    EXPECT_EQ(user.heard, (QStringList{message, message}));
    apply(0);
    EXPECT_EQ(find<PictureBox>("Picture1").image().pixel(5, 127), qRgb(255, 255, 255));
    QTest::keySequence(&window, QKeySequence::Undo);
    EXPECT_EQ(user.heard.size(), 3); // an undo that succeeds tells nothing
    EXPECT_EQ(find<PictureBox>("Picture1").image().pixel(5, 127), qRgb(255, 255, 0));
}

} // namespace cirrava
