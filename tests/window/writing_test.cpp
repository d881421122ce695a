#include "window_fixture.h"

#include "palette_files/palette_image.h"

#include <QDir>
#include <QFile>

namespace cirrava {

namespace {

class Writing : public WindowTest {
protected:
    QString path(const char* name) const { return folder.filePath(name); }

    static QByteArray contents(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static QByteArray image(const CellArray& cells) {
        const Bytes bytes = row_image(cells.colours());
        return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
    }
};

} // namespace

TEST_F(Writing, ThermalProposesANameAsksAndWrites) {
    select(thermal(), 100, 150);
    apply("color(31)");
    user.path = path("thermal.bmp");
    press("thermal_command");

    const FileQuestion question = user.questions.at(0);
    EXPECT_EQ(question.title, "Create Thermal");
    EXPECT_EQ(question.name, "thermal.bmp");
    EXPECT_EQ(question.filter, "*.bmp");
    EXPECT_EQ(question.folder, QCoreApplication::applicationDirPath());
    EXPECT_EQ(user.prompts, QStringList{"Write " + *user.path + "?"});
    EXPECT_EQ(contents(*user.path), image(thermal()));
    EXPECT_TRUE(user.told.isEmpty());

    press("thermal_command"); // the name is proposed afresh, in the program's folder
    EXPECT_EQ(user.questions.at(1).name, "thermal.bmp");
    EXPECT_EQ(user.questions.at(1).folder, QCoreApplication::applicationDirPath());
    EXPECT_EQ(user.prompts.last(), "OVERWRITE " + *user.path + "?");
}

TEST_F(Writing, SeaSurfaceOverALongerFileKeepsItsTail) {
    const QString name = path("sea & <b>\"é\".bmp");
    user.path = name;
    press("thermal_command");
    press("Sea_butt");
    press("sea_command");
    EXPECT_EQ(user.questions.at(1).title, "Create Sea Surface Palette");
    EXPECT_EQ(user.prompts.last(), "OVERWRITE " + name + "?");
    EXPECT_EQ(contents(name), image(sea()) + image(thermal()).last(1014 - 806));
}

TEST_F(Writing, CancelIsToldAndNoIsSilent) {
    press("thermal_command");
    EXPECT_EQ(user.told, QStringList{"Operation Cancelled"});
    EXPECT_TRUE(user.prompts.isEmpty());

    user.path = path("kept.bmp");
    QFile kept(*user.path);
    ASSERT_TRUE(kept.open(QIODevice::WriteOnly));
    kept.write("as it was");
    kept.close();
    user.yes = false;
    press("thermal_command");
    EXPECT_EQ(user.told.size(), 1);
    EXPECT_EQ(contents(*user.path), "as it was");
}

TEST_F(Writing, AFailureIsToldWithItsNumber) {
    user.path = folder.path(); // a folder in place of a file
    press("thermal_command");
    EXPECT_EQ(user.prompts.last(), "Write " + *user.path + "?");
    EXPECT_EQ(user.told.last(), "Error# 75 A problem occured during file creation");
    press("Sea_butt");
    user.path = path("no folder/sea.bmp");
    press("sea_command");
    EXPECT_EQ(user.told.last(), "Error # 76 A problem occured during file creation");
}

} // namespace cirrava
