#include "approved_picture.h"
#include "window_fixture.h"

#include "scale_editor/qt_values.h"

#include <csignal>
#include <unistd.h>

static off_t room_on_disk = INT_MAX; // in bytes of a file

// In place of the system's, for which tests would need a small disk.
extern "C" int fallocate(int, int, off_t offset, off_t size) {
    errno = offset + size > room_on_disk ? ENOSPC : EOPNOTSUPP;
    return -1;
}

namespace cirrava {

const QString not_created(" A problem occured during file creation");

class Files : public WindowTest {
protected:
    // Presses the keys of a file button and returns what the user sees, who answers so.
    QStringList seen_after(Qt::Key key, const std::optional<QString>& path, bool yes = true) {
        user.saw.clear();
        user.path = path;
        user.yes = yes;
        press(Qt::CTRL | key);
        user.saw.replaceInStrings(folder.path(), "HERE")
            .replaceInStrings(QCoreApplication::applicationDirPath(), "PROGRAM");
        return user.saw;
    }
};

TEST_F(Files, AreAskedForWrittenAndReadBack) {
    const QString file = folder.filePath("a.bmp");
    EXPECT_EQ(seen_after(Qt::Key_O, std::nullopt),
              (QStringList{"Read and Load palette:  of *.bmp in PROGRAM", "Operation Cancelled"}));
    const std::tuple<const char*, CellArray&, const char*, int, Colour, QString> scales[]{
        // The button, the cells, the dialog, the file's size (Sea's is shorter, but written over
        // Thermal's), the colour read back (of HVC two levels darker), a failure.
        {"thermal_butt", thermal(), "Create Thermal: thermal", 1014, 0x030201, "Error# 75"},
        {"Sea_butt", sea(), "Create Sea Surface Palette: sea", 1014, 0x030201, "Error # 75"},
        {"hvc_butt", hvc(), "Create HVC Palette: hvc", 76854, 0x010000, "Error # 75"}};
    for (const auto& [choose, cells, title, size, read, failure] : scales) {
        const QString question = QString(title) + ".bmp of *.bmp in PROGRAM";
        const QString verb = QFile::exists(file) ? "OVERWRITE" : "Write";
        act(QString("click ") + choose);
        EXPECT_EQ(seen_after(Qt::Key_S, {}), (QStringList{question, "Operation Cancelled"}));
        EXPECT_EQ(seen_after(Qt::Key_S, file, false),
                  (QStringList{question, "Ready to create: " + verb + " HERE/a.bmp?"}));
        EXPECT_EQ(QFile::exists(file), verb == "OVERWRITE");
        EXPECT_EQ(seen_after(Qt::Key_S, folder.path()).last(), failure + not_created);
        EXPECT_TRUE(preview().isNull());
        cells.fill({7, 9}, 0x030201);
        seen_after(Qt::Key_S, file);
        EXPECT_EQ(preview().isNull(), size == 1014); // until there is an HVC palette
        EXPECT_EQ(QFileInfo(file).size(), size);     // of a longer file that was there, if any
        cells.fill({0, 99}, 0);
        act("click Sea_butt");
        EXPECT_EQ(seen_after(Qt::Key_O, file),
                  QStringList{"Read and Load palette: a.bmp of *.bmp in HERE"});
        EXPECT_EQ(text("Label5"), "Sea");
        EXPECT_EQ(cells.colours().mid(8, 3), (QList<Colour>{read, read, 0}));
    }
    EXPECT_EQ(preview().pixelColor(9, 127), to_qt(0x030201));
}

TEST_F(Files, DamagedOnesAreToldAndLoadAsFarAsTheyGo) {
    const QString not_ours = "Not a Cirrava PAL file... It's probably corrupted";
    const Colour red = RGB(255, 0, 0), grey = RGB(88, 88, 88);
    const std::tuple<const char*, QString, Colour, Colour> files[]{
        // the name, the message, cells 99 of Thermal and of HVC afterwards
        {"text", "Selected file is not a color palette", 0, 0},
        {"other-size", not_ours, 0, 0},
        {"thermal-of-100-cells", "", red, 0},
        {"hvc-too-short", "Error # 62 Cannot Read File", red, 0},
        {"hvc-of-one-bit-and-256-colours", "", red, 0},
        {"hvc-just-long-enough", "", red, grey},
        {"hvc-too-many-colours", "Error # 481 Cannot Read File", red, grey}};
    // The picture comes from the file that was opened, even if that is gone by then.
    QObject::connect(&hvc(), &CellArray::changed, [] { QFile::remove("a.bmp"); });
    for (const auto& [name, message, thermal_cell, hvc_cell] : files) {
        QFile::remove("a.bmp");
        EXPECT_TRUE(QFile::copy(QString(CORPUS "/%1.bmp").arg(name), "a.bmp")) << name;
        const QStringList seen = seen_after(Qt::Key_O, "a.bmp");
        EXPECT_EQ(seen.value(1), message) << name;
        EXPECT_EQ(thermal().colour(99), thermal_cell) << name;
        EXPECT_EQ(hvc().colour(99), hvc_cell) << name;
    }
    EXPECT_EQ(thermal().colour(100), 0);
    EXPECT_EQ(preview().pixel(50, 129), qRgb(88, 88, 88));
    EXPECT_EQ(preview().pixel(50, 128), qRgb(0, 0, 0)); // of the rows that the file lacks
}

TEST_F(Files, ThatFailChangeNothingAndAreClosed) {
    paint("Label3", 5, 50, 20);
    EXPECT_EQ(QFileInfo("~~temphvc.bmp").size(), 76854);
    const QImage before = on_screen(window);
    EXPECT_EQ(seen_after(Qt::Key_O, folder.path()).last(), "Error # 75 Cannot Read File");
    // No Unicode.
    EXPECT_EQ(seen_after(Qt::Key_O, QChar(0xD800)).last(), "Error # 52 Cannot Read File");
    EXPECT_EQ(seen_after(Qt::Key_O, CORPUS "/hvc-too-short.bmp").size(), 2);
    seen_after(Qt::Key_S, folder.path());
    EXPECT_TRUE(on_screen(window) == before);
    for (const QFileInfo& open : QDir("/proc/self/fd").entryInfoList())
        EXPECT_FALSE(open.symLinkTarget().endsWith(".bmp"));
}

TEST_F(Files, OnAFullDiskAreToldAndThePreviewShowsAllTheSame) {
    paint("Label3", 5, 50, 20);
    room_on_disk = 50;        // not even for the headers
    brightness().setValue(7); // which fails, and so does the preview after it
    EXPECT_EQ(user.saw, QStringList(2, "Error # 61" + not_created));
    EXPECT_EQ(hvc().colour(5), RGB(255, 255, 0));
    act("click color(0), click Command2");
    EXPECT_EQ(preview().pixel(5, 127), qRgb(255, 255, 255));
    press(QKeySequence::Undo);
    EXPECT_EQ(user.saw.size(), 3); // an undo that succeeds tells nothing
    EXPECT_EQ(preview().pixel(5, 127), qRgb(255, 255, 0));
    room_on_disk = INT_MAX;
    std::raise(SIGXFSZ); // as a limit on files does
    std::raise(SIGPIPE);
    EXPECT_TRUE(QFile::copy(CORPUS "/thermal.bmp", "a.bmp"));
    room_on_disk = 76'853; // for all but the last byte
    EXPECT_EQ(seen_after(Qt::Key_S, "a.bmp").last(), "Error # 61" + not_created);
    EXPECT_EQ(QFileInfo("a.bmp").size(), 1014); // nothing is written over it
    brightness().setValue(0);
    EXPECT_EQ(hvc().colour(5), RGB(234, 234, 0));
    room_on_disk = INT_MAX;
}

TEST_F(Files, OfOthersAreLeftWholeUnlessTheUserSaysOverwrite) {
    // To the second question, when the file is there, the user says no.
    user.meanwhile = [this] { user.yes = QFile::copy(CORPUS "/sea.bmp", "a.bmp"); };
    EXPECT_EQ(seen_after(Qt::Key_S, folder.filePath("a.bmp")).mid(1),
              (QStringList{"Ready to create: Write HERE/a.bmp?",
                           "Ready to create: OVERWRITE HERE/a.bmp?"}));
    act("click hvc_butt");
    for (const auto link_to : {::link, ::symlink}) {
        QFile::remove("~~temphvc.bmp");
        EXPECT_EQ(link_to("a.bmp", "~~temphvc.bmp"), 0);
        act("left Label3 1, right Label3 1, click Command2");
        EXPECT_EQ(user.saw.takeLast(), "Error # 75" + not_created);
        EXPECT_EQ(QFileInfo("a.bmp").size(), 806);
    }
}

TEST_F(Files, ThatAreHiddenAndLinksThatLeadNowhereDoNotCountAsExisting) {
    EXPECT_TRUE(QFile::copy(CORPUS "/thermal.bmp", ".a.bmp"));
    EXPECT_EQ(::symlink("none.bmp", "b.bmp"), 0);
    for (const QString name : {".a.bmp", "b.bmp"})
        EXPECT_EQ(seen_after(Qt::Key_S, folder.filePath(name)).mid(1),
                  QStringList("Ready to create: Write HERE/" + name + "?"));
}

TEST_F(Files, AreChosenInDocumentsWhereTheirFolderIsMissing) {
    CommonDialog dialog(user.dialogs());
    EXPECT_TRUE(QDir::home().mkdir("Documents"));
    dialog.InitDir = "/no/such/folder";
    user.path = "a.bmp";
    dialog.ShowSave();
    EXPECT_EQ(user.saw, QStringList(":  of  in " + folder.filePath("Documents")));
}

} // namespace cirrava
