#include "window_fixture.h"

#include "scale_editor/qt_values.h"

#include <QFile>

namespace cirrava {

namespace {

class Files : public WindowTest {
protected:
    // What is asked and told when `button` is pressed, by its key, and the user answers so.
    QString heard_of(const QString& button, const std::optional<QString>& path, bool yes = true) {
        user.heard.clear();
        user.path = path;
        user.yes = yes;
        QTest::keySequence(&window, Qt::CTRL | (button == "Command5" ? Qt::Key_O : Qt::Key_S));
        return user.heard.join("; ")
            .replace(folder.path(), "HERE")
            .replace(QCoreApplication::applicationDirPath(), "PROGRAM");
    }

    // On the chosen scale: no dialog answered, no file wanted, one written and read back over
    // black. `colour` is what cells come back in that were white.
    void write_and_read(const char* choose, const char* generate, CellArray& cells,
                        const QString& dialog, int size, Colour colour) {
        const QImage& picture = find<PictureBox>("Picture1").image();
        const QFileInfo file(folder.filePath("a.bmp"));
        const QString question = dialog + ".bmp of *.bmp in PROGRAM; ";
        const QString verb = file.exists() ? "OVERWRITE" : "Write";
        const qint64 size_before = file.size();
        press(choose);
        EXPECT_EQ(heard_of(generate, std::nullopt), question + "Operation Cancelled");
        EXPECT_EQ(heard_of(generate, file.filePath(), false),
                  question + "Ready to create: " + verb + " HERE/a.bmp?");
        EXPECT_EQ(QFileInfo(file.filePath()).size(), size_before);
        EXPECT_TRUE(picture.isNull());
        select(cells, 7, 9);
        apply(0);
        heard_of(generate, file.filePath());
        EXPECT_EQ(QFileInfo(file.filePath()).size(), size);
        apply(5);
        press("Sea_butt");
        EXPECT_EQ(heard_of("Command5", file.filePath()),
                  "Read and Load palette: a.bmp of *.bmp in HERE");
        EXPECT_EQ(caption("Label5"), "Sea");
        press(choose);
        heard_of(generate, file.filePath()); // which shows the cells, and changes none
        EXPECT_EQ(cells.colour(8), colour);
        EXPECT_TRUE(picture.isNull() || picture.pixelColor(8, 127) == to_qt(colour));
        QTest::keySequence(&window, QKeySequence::Undo);
        EXPECT_EQ(cells.colour(8), 0);
    }
};

} // namespace

TEST_F(Files, AreAskedForWrittenAndReadBack) {
    EXPECT_EQ(heard_of("Command5", std::nullopt),
              "Read and Load palette:  of *.bmp in PROGRAM; Operation Cancelled");
    write_and_read("thermal_butt", "thermal_command", thermal(), "Create Thermal: thermal", 1014,
                   0xFFFFFF);
    // Over the Thermal file, whose end stays.
    write_and_read("Sea_butt", "sea_command", sea(), "Create Sea Surface Palette: sea", 1014,
                   0xFFFFFF);
    write_and_read("hvc_butt", "hvc_command", hvc(), "Create HVC Palette: hvc", 76854, 0xFDFDFD);
    EXPECT_TRUE(QFile::exists("~~temphvc.bmp"));
}

TEST_F(Files, DamagedOnesAreToldAndLoadAsFarAsTheyGo) {
    // What is told, and cell 99 of Thermal and HVC afterwards.
    const auto load = [this](const char* name) {
        const QString heard = heard_of("Command5", QString(CORPUS "/%1.bmp").arg(name));
        return heard.section("; ", 1) + QString("|%1|%2")
                                            .arg(thermal().colour(99), 6, 16, QChar('0'))
                                            .arg(hvc().colour(99), 6, 16, QChar('0'));
    };
    const QString not_ours = "Not a Cirrava PAL file... It's probably corrupted";
    EXPECT_EQ(load("text"), "Selected file is not a color palette|000000|000000");
    EXPECT_EQ(load("two-bytes"), not_ours + "|000000|000000");
    EXPECT_EQ(load("other-size"), not_ours + "|000000|000000");
    EXPECT_EQ(load("thermal-of-100-cells"), "|0000ff|000000");
    EXPECT_EQ(thermal().colour(100), 0);
    EXPECT_EQ(load("hvc-too-short"), "Error # 62 Cannot Read File|0000ff|000000");
    EXPECT_EQ(load("hvc-just-long-enough"), "|0000ff|585858");
    EXPECT_EQ(load("hvc-too-many-colours"), "Error # 481 Cannot Read File|0000ff|585858");
    const QImage& picture = find<PictureBox>("Picture1").image();
    EXPECT_EQ(picture.pixel(50, 255 - 126), qRgb(88, 88, 88));
    EXPECT_EQ(picture.pixel(50, 255 - 127), qRgb(0, 0, 0)); // the rows that the file lacks
}

} // namespace cirrava
