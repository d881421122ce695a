#include "window_fixture.h"

#include <QFile>

namespace cirrava {

namespace {

class Files : public WindowTest {
protected:
    // What is asked and told when `button` is pressed and the user answers so.
    QString heard_of(const QString& button, const std::optional<QString>& path, bool yes = true) {
        user.heard.clear();
        user.path = path;
        user.yes = yes;
        press(button);
        return user.heard.join("; ")
            .replace(folder.path(), "HERE")
            .replace(QCoreApplication::applicationDirPath(), "PROGRAM");
    }
};

} // namespace

TEST_F(Files, AreAskedForWrittenAndReadBack) {
    EXPECT_EQ(heard_of("Command5", std::nullopt),
              "Read and Load palette:  of *.bmp in PROGRAM; Operation Cancelled");
    const struct {
        const char *choose, *generate;
        CellArray& cells;
        QString name, title;
        int size;
        Colour read; // back from white
    } scales[]{
        {"thermal_butt", "thermal_command", thermal(), "thermal", "Create Thermal", 1014, 0xFFFFFF},
        {"Sea_butt", "sea_command", sea(), "sea", "Create Sea Surface Palette", 806, 0xFFFFFF},
        {"hvc_butt", "hvc_command", hvc(), "hvc", "Create HVC Palette", 76854, 0xFDFDFD},
    };
    for (const auto& [choose, generate, cells, name, title, size, read] : scales) {
        const QString path = folder.filePath(name + ".bmp");
        const QString question = title + ": " + name + ".bmp of *.bmp in PROGRAM; ";
        press(choose);
        EXPECT_EQ(heard_of(generate, std::nullopt), question + "Operation Cancelled");
        const QString prompt = question + "Ready to create: %1 HERE/" + name + ".bmp?";
        EXPECT_EQ(heard_of(generate, path, false), prompt.arg("Write"));
        EXPECT_FALSE(QFile::exists(path));
        EXPECT_TRUE(find<PictureBox>("Picture1").image().isNull());
        select(cells, 7, 9);
        apply(0);
        EXPECT_EQ(heard_of(generate, path), prompt.arg("Write"));
        EXPECT_EQ(QFile(path).size(), size);
        apply(5);
        EXPECT_EQ(heard_of(generate, path, false), prompt.arg("OVERWRITE"));
        press("Sea_butt");
        EXPECT_EQ(heard_of("Command5", path),
                  "Read and Load palette: " + name + ".bmp of *.bmp in HERE");
        EXPECT_EQ(cells.colour(8), read);
        EXPECT_EQ(caption("Label5"), "Sea");
        QTest::keySequence(&window, QKeySequence::Undo);
        EXPECT_EQ(cells.colour(8), 0);
    }
    const QImage& picture = find<PictureBox>("Picture1").image();
    EXPECT_EQ(picture.pixel(8, 127), qRgb(0, 0, 0)); // since the undo
}

TEST_F(Files, DamagedOnesAreToldAndLoadAsFarAsTheyGo) {
    const QString not_ours = "; Not a Cirrava PAL file... It's probably corrupted";
    const Colour red = RGB(255, 0, 0), grey = RGB(88, 88, 88);
    const struct {
        const char* name;
        QString told;
        Colour thermal_99, hvc_99; // afterwards
    } files[]{
        {"text", "; Selected file is not a color palette", 0, 0},
        {"two-bytes", not_ours, 0, 0},
        {"other-size", not_ours, 0, 0},
        {"thermal-of-100-cells", "", red, 0},
        {"hvc-too-short", "; Error # 62 Cannot Read File", red, 0},
        {"hvc-just-long-enough", "", red, grey},
        {"hvc-unknown-compression", "; Error # 481 Cannot Read File", red, grey},
    };
    for (const auto& [name, told, thermal_99, hvc_99] : files) {
        SCOPED_TRACE(name);
        const QString heard = heard_of("Command5", QString(CORPUS "/%1.bmp").arg(name));
        EXPECT_EQ(heard.section("; ", 1), told.mid(2));
        EXPECT_EQ(thermal().colour(99), thermal_99);
        EXPECT_EQ(thermal().colour(100), 0);
        EXPECT_EQ(hvc().colour(99), hvc_99);
    }
    const QImage& picture = find<PictureBox>("Picture1").image();
    EXPECT_EQ(picture.pixel(50, 255 - 126), qRgb(88, 88, 88));
    EXPECT_EQ(picture.pixel(50, 255 - 127), qRgb(0, 0, 0)); // the rows that the file lacks
}

} // namespace cirrava
