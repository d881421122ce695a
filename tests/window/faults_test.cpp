#include "window_fixture.h"

#include "../circumstances.h"

#include <QDir>
#include <QFile>
#include <sys/stat.h>

namespace cirrava {

namespace {

// Everything that a fault must leave as it was.
struct WindowState {
    std::array<std::vector<Colour>, 3> cells;
    QStringList texts;
    QImage picture;
    qsizetype open_files = 0;

    bool operator==(const WindowState&) const = default;
};

struct Fault {
    QString file;
    int writing = 0; // the failure number; 0 where there is nothing to try
    int reading = 0;
};

class Faults : public WindowTest {
protected:
    Faults() {
        QDir::setCurrent(folder.path());
        select(thermal(), 10, 20);
        apply("color(9)");
        select(sea(), 30, 40);
        apply("color(12)");
        select(hvc(), 5, 50);
        apply("color(20)");
        chmod(folder.path().toUtf8(), 0755);
    }
    ~Faults() override { QDir::setCurrent(QDir::tempPath()); }

    WindowState state() {
        WindowState now;
        for (const ScaleKind kind : all_scales) {
            const auto colours = Scales{thermal(), sea(), hvc()}[kind].colours();
            now.cells[static_cast<std::size_t>(kind)].assign(colours.begin(), colours.end());
        }
        now.texts = boxes() << caption("Label5") << swatch().name();
        now.picture = find<PictureBox>("Picture1").image();
        now.open_files = QDir("/proc/self/fd").count();
        return now;
    }

    QString make(const char* name, mode_t mode) const {
        const QString path = folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        chmod(path.toUtf8(), mode);
        return path;
    }

    // Does what `button` does with the file, and expects `message` and nothing else.
    void expect_failure(const char* button, const QString& file, const QString& message) {
        SCOPED_TRACE(button + (": " + file).toStdString());
        user.told.clear();
        user.path = file;
        const WindowState before = state();
        press(button);
        EXPECT_EQ(user.told, QStringList{message});
        EXPECT_TRUE(state() == before);
        EXPECT_TRUE(window.isVisible());
    }

    void expect_number(const Fault& fault) {
        const QString end =
            QString::number(fault.writing) + " A problem occured during file creation";
        if (fault.writing != 0) {
            press("thermal_butt");
            expect_failure("thermal_command", fault.file, "Error# " + end);
            press("Sea_butt");
            expect_failure("sea_command", fault.file, "Error # " + end);
            press("hvc_butt");
            expect_failure("hvc_command", fault.file, "Error # " + end);
        }
        if (fault.reading != 0)
            expect_failure("Command5", fault.file,
                           "Error # " + QString::number(fault.reading) + " Cannot Read File");
    }
};

} // namespace

TEST_F(Faults, OfANameAreToldByNumberAndChangeNothing) {
    const QString pipe = folder.filePath("pipe");
    ASSERT_EQ(mkfifo(pipe.toUtf8(), 0666), 0);
    const Fault faults[]{
        {.file = "", .reading = 52},
        {.file = folder.filePath(QString(300, 'a')), .writing = 52, .reading = 52},
        {.file = folder.filePath("missing.bmp"), .reading = 53},
        {.file = folder.filePath("no folder/a.bmp"), .writing = 76, .reading = 76},
        {.file = make("file", 0644) + "/a.bmp", .writing = 76, .reading = 76},
        {.file = folder.path(), .writing = 75, .reading = 75},
        {.file = pipe, .writing = 75, .reading = 75},
        {.file = "/dev/null", .writing = 75, .reading = 75},
    };
    for (const Fault& fault : faults)
        expect_number(fault);
    EXPECT_FALSE(QFile::exists(folder.filePath("missing.bmp")));
}

TEST_F(Faults, OfPermissionAreToldByNumberAndChangeNothing) {
    const Fault faults[]{
        {.file = make("read-only.bmp", 0444), .writing = 75},
        {.file = make("secret.bmp", 0200), .reading = 75},
        {.file = folder.filePath("new in a read-only folder.bmp"), .writing = 75, .reading = 53},
    };
    chmod(folder.path().toUtf8(), 0555);
    {
        const PlainUser nobody;
        for (const Fault& fault : faults)
            expect_number(fault);
    }
    chmod(folder.path().toUtf8(), 0755);
}

TEST_F(Faults, OfAFullDiskIsToldByNumberAndChangesNothing) {
    const QString file = make("a.bmp", 0644);
    {
        const Limit small_files(RLIMIT_FSIZE, 50);
        expect_number({.file = file, .writing = 61});
    }
    user.path = file; // and when the circumstances are better, so is the outcome
    press("hvc_command");
    EXPECT_EQ(QFile(file).size(), 76854);
}

TEST_F(Faults, ARemovedCurrentFolderFailsThePreviewOnly) {
    ASSERT_TRUE(QDir().mkdir("gone"));
    QDir::setCurrent("gone");
    ASSERT_TRUE(QDir(folder.path()).rmdir("gone"));
    const QString message = "Error # 76 A problem occured during file creation";
    const WindowState before = state();
    find<NumberBar>("HScroll4").setValue(7); // neither the shifted image nor the preview
    EXPECT_EQ(user.told, (QStringList{message, message}));
    EXPECT_TRUE(state() == before);

    apply("color(0)");
    EXPECT_EQ(user.told.size(), 3);
    EXPECT_EQ(hvc().colour(5), RGB(255, 255, 255));
    EXPECT_EQ(state().picture, before.picture);
    user.path = folder.filePath("saved.bmp");
    press("hvc_command");
    EXPECT_EQ(user.told.size(), 3);
    EXPECT_EQ(QFile(*user.path).size(), 76854);
}

} // namespace cirrava
