#include "window_fixture.h"

#include "palette_files/palette_image.h"

#include <QFile>
#include <QProcess>

namespace cirrava {

namespace {

class Loading : public WindowTest {
protected:
    QString path(const QString& name) const { return folder.filePath(name); }

    QString make(const QString& name, const QByteArray& bytes) const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return file.fileName();
    }

    QString make(const QString& name, const Bytes& bytes) const {
        return make(name, QByteArray(reinterpret_cast<const char*>(bytes.data()),
                                     static_cast<qsizetype>(bytes.size())));
    }

    void load(const QString& file) {
        user.path = file;
        press("Command5");
    }

    // Runs ImageMagick and returns what it prints.
    static QByteArray convert(const QStringList& arguments) {
        QProcess process;
        process.start("convert", arguments);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return process.readAllStandardOutput();
    }
};

std::vector<Colour> colours_of(const CellArray& cells) {
    return {cells.colours().begin(), cells.colours().end()};
}

// One row of an image as colours.
std::vector<Colour> row_of(const QImage& image, int row) {
    std::vector<Colour> colours;
    for (int x = 0; x < image.width(); ++x)
        colours.push_back(RGB(qRed(image.pixel(x, row)), qGreen(image.pixel(x, row)),
                              qBlue(image.pixel(x, row))));
    return colours;
}

std::vector<Colour> rainbow(int count) {
    std::vector<Colour> colours;
    for (int i = 0; i < count; ++i)
        colours.push_back(RGB(i % 256, (i * 7) % 256, 255 - i % 256));
    return colours;
}

} // namespace

TEST_F(Loading, StartsFromTheLastChoiceAndLeavesTheWorkingScale) {
    press("hvc_butt");
    load(make("thermal.bmp", row_image(rainbow(320))));
    EXPECT_EQ(user.questions.at(0).title, "Read and Load palette");
    EXPECT_EQ(user.questions.at(0).name, "");
    load(*user.path);
    EXPECT_EQ(user.questions.at(1).folder, folder.path());
    EXPECT_EQ(user.questions.at(1).name, "thermal.bmp");
    EXPECT_EQ(colours_of(thermal()), rainbow(320));
    EXPECT_EQ(caption("Label5"), "HVC");
}

TEST_F(Loading, AnHvcFileThatCannotBeShownIsLoadedAllTheSame) {
    auto colours = rainbow(100);
    Bytes image = hvc_image(colours);
    image[30] = 99; // a compression that nobody knows
    load(make("odd.bmp", image));
    EXPECT_EQ(user.told, QStringList{"Error # 481 Cannot Read File"});
    EXPECT_EQ(hvc().colour(50), RGB(48, 350 % 256 - 2, 203));
}

TEST_F(Loading, PalettesOfOtherProgramsLoad) {
    const struct {
        const char* size;
        CellArray& cells;
        int row;
    } kinds[]{{"320x1", thermal(), 0}, {"250x1", sea(), 0}, {"100x256", hvc(), 129}};
    const struct {
        QStringList written_as;
        char info_header_size; // which tells the version
    } versions[]{{{"BMP3:"}, 40}, {{"-intent", "Undefined", "BMP:"}, 108}, {{"BMP:"}, 124}};
    for (const auto& [size, cells, row] : kinds) {
        const QString file = path(QString("%1.bmp").arg(size));
        const auto expect_same = [&] {
            load(file);
            EXPECT_EQ(colours_of(cells), row_of(QImage(file), row)) << file.toStdString();
            EXPECT_NE(cells.colour(0), RGB(0, 0, 0));
        };
        for (const auto& version : versions) {
            QStringList arguments{"-size", size,    "plasma:red-blue", "-depth",
                                  "8",     "-type", "TrueColor"};
            arguments += version.written_as;
            arguments.last() += file;
            convert(arguments);
            QFile written(file);
            ASSERT_TRUE(written.open(QIODevice::ReadOnly));
            EXPECT_EQ(written.read(15).back(), version.info_header_size);
            expect_same();
        }
        ASSERT_TRUE(QImage(file).mirrored(true, true).save(file)); // written by Qt
        expect_same();
    }
    EXPECT_TRUE(user.told.isEmpty()) << user.told.join('\n').toStdString();
}

TEST_F(Loading, FilesWrittenHereOpenElsewhereWithTheSamePixels) {
    auto hvc_cells = rainbow(100);
    const struct {
        Bytes bytes;
        int own_colours_row;
    } files[]{
        {row_image(rainbow(320)), 0}, {row_image(rainbow(250)), 0}, {hvc_image(hvc_cells), 127}};
    for (const auto& [bytes, own_colours_row] : files) {
        const QString file = make("written.bmp", bytes);
        const QImage image = QImage(file).convertToFormat(QImage::Format_RGB888);
        EXPECT_EQ(row_of(image, own_colours_row), rainbow(image.width()));

        // The length field in the header is 0, which ImageMagick by itself complains about.
        const QByteArray pixels =
            convert({"-define", "bmp:ignore-filesize=true", file, "-depth", "8", "rgb:-"});
        const QImage as_read_elsewhere(reinterpret_cast<const uchar*>(pixels.data()), image.width(),
                                       image.height(), 3 * image.width(), QImage::Format_RGB888);
        ASSERT_EQ(pixels.size(), 3 * image.width() * image.height());
        EXPECT_EQ(as_read_elsewhere, image);
    }
}

} // namespace cirrava
