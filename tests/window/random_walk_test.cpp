#include "editor_model.h"
#include "random_user.h"

#include <QDir>
#include <QFile>

namespace cirrava {

namespace {

// Does what a user might do, at random, to the window and to the model of it.
class RandomWalk : public RandomUser {
protected:
    RandomWalk() {
        QDir::setCurrent(folder.path()); // the preview is written there
        for (const char* name : {"~~temphvc.bmp", "folder", "a.bmp", "b.bmp", "c.bmp", "d.bmp"})
            paths_ << folder.filePath(name);
        model_.preview = paths_[0];
        make_folder(paths_[1]);
    }
    ~RandomWalk() override { QDir::setCurrent(before_); }

    // One random event on both.
    void step() {
        static constexpr struct {
            int weight; // in 100
            void (RandomWalk::*event)();
        } events[]{
            {20, &RandomWalk::click_cell},
            {8, &RandomWalk::press_here_release_there},
            {4, &RandomWalk::double_click_cell},
            {4, &RandomWalk::choose_scale},
            {10, &RandomWalk::take_preset},
            {3, &RandomWalk::pick_colour},
            {12, &RandomWalk::move_colour_slider},
            {10, &RandomWalk::move_brightness},
            {12, &RandomWalk::apply_colour},
            {3, &RandomWalk::reset},
            {7, &RandomWalk::generate},
            {6, &RandomWalk::load},
            {1, &RandomWalk::block_preview},
        };
        for (QStringList* const texts : {&user.told, &user.prompts, &model_.told, &model_.prompts})
            texts->clear();
        story.clear();
        int number = draw(100);
        const auto* chosen = events;
        for (; number >= chosen->weight; ++chosen)
            number -= chosen->weight;
        (this->*chosen->event)();
    }

    void compare() {
        ASSERT_EQ(shown(), model_.window());
        CellArray* const scales[]{&thermal(), &sea(), &hvc()};
        for (const int scale : {0, 1, 2}) {
            const auto [is, should_be] =
                std::ranges::mismatch(scales[scale]->colours(), std::as_const(model_.cells[scale]));
            ASSERT_TRUE(should_be == model_.cells[scale].cend())
                << "scale " << scale << " cell " << should_be - model_.cells[scale].cbegin()
                << " is " << std::hex << *is << ", not " << *should_be;
        }
        ASSERT_TRUE(find<PictureBox>("Picture1").image() == model_.picture);
        if (!model_.out_path.isEmpty())
            compare_file(model_.out_path);
    }

    void compare_file(const QString& path) {
        const auto expected = model_.files.find(path);
        QFile file(path);
        ASSERT_EQ(file.open(QIODevice::ReadOnly), expected != model_.files.end());
        ASSERT_TRUE(!file.isOpen() || file.readAll() == expected->second) << path.toStdString();
    }

    void compare_folder() {
        for (const auto& file : model_.files)
            ASSERT_NO_FATAL_FAILURE(compare_file(file.first));
        const auto found = QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
        EXPECT_EQ(found.size(), std::ssize(model_.files) + std::ssize(model_.folders));
    }

private:
    void release_over(const Place& place, Qt::MouseButton button) {
        release_mouse(place.point, button);
        say() << "scale" << place.scale << "cell" << place.cell;
        if (place.scale >= 0)
            model_.release(place.scale, place.cell, button);
    }

    void click_cell() {
        const Place place = any_cell(model_.working);
        const auto button = any_button();
        press_mouse(place.point, button);
        release_over(place, button);
    }

    void press_here_release_there() {
        const auto button = any_button();
        const auto other = button == Qt::LeftButton ? Qt::RightButton : Qt::LeftButton;
        press_mouse(any_cell(model_.working).point, button);
        if (one_in(4)) { // both at once
            press_mouse(any_cell(model_.working).point, other);
            release_over(anywhere(model_.working), other);
        }
        release_over(anywhere(model_.working), button);
    }

    void double_click_cell() {
        const auto [point, scale, cell] = any_cell(model_.working);
        const auto button = any_button();
        say() << button << "twice at" << point << "scale" << scale << "cell" << cell;
        QTest::mouseDClick(window.windowHandle(), button, {}, point);
        model_.release(scale, cell, button);
        model_.copy_colour(scale, cell);
    }

    void choose_scale() {
        const int scale = draw(3);
        if (press_button(choose_button(EditorModel::names[scale])))
            model_.choose(scale);
    }

    void take_preset() {
        const int number = draw(48);
        if (press_button(QString("color(%1)").arg(number)))
            model_.take(EditorModel::presets[number]);
    }

    void pick_colour() {
        user.colour.reset();
        if (!one_in(4))
            user.colour = QColor(draw(256), draw(256), draw(256));
        if (press_button("pickcolor") && user.colour)
            model_.take(user.colour->rgb());
    }

    void move_colour_slider() {
        const int channel = draw(3);
        int& position = model_.current[channel];
        position = move_slider(find<NumberBar>(QString("HScroll%1").arg(channel + 1)), position);
    }

    void move_brightness() {
        model_.move_brightness(move_slider(find<NumberBar>("HScroll4"), EditorModel::brightness));
    }

    void apply_colour() {
        if (press_button("Command2"))
            model_.apply();
    }

    void reset() {
        if (press_button("Command1"))
            model_.reset();
    }

    void generate() {
        const int scale = one_in(2) ? model_.working : draw(3);
        user.path = any_path();
        user.yes = !one_in(5);
        say() << user.yes;
        if (user.path && one_in(3) && model_.files.erase(*user.path) > 0)
            QFile::remove(*user.path);
        if (press_button(QStringList{"thermal_command", "sea_command", "hvc_command"}[scale]))
            model_.generate(scale, user.path, user.yes);
    }

    void load() {
        user.path = any_path();
        if (user.path && one_in(2) && !model_.folders.contains(*user.path)) {
            const QByteArray garbage = any<QByteArray>({"BM", "bm", ""}) + noise(draw(26));
            const QByteArray bytes = one_in(6) ? garbage : foreign_palette();
            QFile file(*user.path);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            ASSERT_EQ(file.write(bytes), bytes.size());
            model_.files[*user.path] = bytes;
        }
        if (press_button("Command5"))
            model_.load(user.path);
    }

    // A folder in the place of the preview file comes, seldom, and goes.
    void block_preview() {
        say() << "block or unblock the preview";
        if (model_.folders.erase(model_.preview) > 0) {
            QDir().rmdir(model_.preview);
        } else if (one_in(4)) {
            QFile::remove(model_.preview);
            model_.files.erase(model_.preview);
            make_folder(model_.preview);
        }
    }

    // For the next file dialog; nothing cancels it.
    std::optional<QString> any_path() {
        auto path = one_in(6) ? std::nullopt : std::optional(any(paths_));
        say() << path.value_or("cancel");
        return path;
    }

    // A palette of another program: of any length, with the pixels anywhere, and often with
    // nonsense where the header does not count.
    QByteArray foreign_palette() {
        const int scale = draw(3);
        const int offset = any<int>({54, 54, 54, 0, -1, 55, 57, 58, 63, 138, 1078, 1 << 30});
        const int usual =
            scale == EditorModel::hvc ? any<int>({76800, 38100, 38099}) : any<int>({960, 752, 750});
        const int length = std::clamp(offset - 54, 0, 1024) + (one_in(2) ? usual : draw(2 * usual));
        say() << "foreign" << scale << "offset" << offset << "pixels" << length;
        QByteArray header = model_.image(scale).first(54);
        if (one_in(2))
            header.replace(2, 16, noise(16)).replace(26, 28, noise(28));
        for (int byte = 0; byte < 4; ++byte)
            header[10 + byte] = static_cast<char>(offset >> 8 * byte);
        return header + noise(length);
    }

    void make_folder(const QString& path) {
        ASSERT_TRUE(QDir().mkdir(path));
        model_.folders.insert(path);
    }

    // In the same words as the model.
    QStringList shown() {
        QStringList lines = boxes() << caption("Label5");
        for (const QString& scale : EditorModel::names)
            if (find<Button>(choose_button(scale)).face() == QColor(0, 255, 0))
                lines << "green: " + scale;
        lines << "enabled:";
        for (const char* name :
             {"thermal_command", "sea_command", "hvc_command", "Command1", "HScroll4"})
            if (enabled(name))
                lines << name;
        for (const int channel : {1, 2, 3})
            lines << QString("slider %1, readout %2")
                         .arg(find<NumberBar>(QString("HScroll%1").arg(channel)).value())
                         .arg(find<QLabel>(QString("Label%1").arg(14 + channel)).text());
        lines << "swatch " + swatch().name();
        lines << QString("brightness %1").arg(find<NumberBar>("HScroll4").value());
        return lines << "told:" << user.told << "asked:" << user.prompts;
    }

    static QString choose_button(const QString& scale) {
        return (scale == "Sea" ? scale : scale.toLower()) + "_butt";
    }

    EditorModel model_;
    QStringList paths_;
    QString before_ = QDir::currentPath();
};

std::uint64_t number_from(const char* variable, std::uint64_t otherwise) {
    return qEnvironmentVariableIsSet(variable) ? qgetenv(variable).toULongLong() : otherwise;
}

} // namespace

// CIRRAVA_WALK_SEED walks a walk again, CIRRAVA_WALK_EVENTS makes it shorter or longer.
TEST_F(RandomWalk, AgreesWithThePlainModelAfterEveryEvent) {
    const auto seed = number_from("CIRRAVA_WALK_SEED", std::random_device()());
    const auto events = number_from("CIRRAVA_WALK_EVENTS", 10'000);
    const std::string start = "CIRRAVA_WALK_SEED=" + std::to_string(seed);
    std::cout << start << std::endl;
    RecordProperty("CIRRAVA_WALK_SEED", std::to_string(seed));
    start_from(seed);
    for (std::uint64_t number = 1; number <= events; ++number) {
        step();
        SCOPED_TRACE(start + ", event " + std::to_string(number) + ": " + story.toStdString());
        ASSERT_NO_FATAL_FAILURE(compare());
    }
    compare_folder();
}

} // namespace cirrava
