// Measures what the program does while it runs. Prints the name of each action and its
// milliseconds.

#include "palette_files/palette_image.h"
#include "platform/binary_file.h"
#include "ui/cirrava.h"
#include "ui/set_up.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>

namespace {

using namespace cirrava;

constexpr int rounds = 501;

// The milliseconds of an action, the mean of so many in a row.
template <class Action> double time(int times, Action action) {
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < times; ++i)
        action();
    const std::chrono::duration<double, std::milli> all = std::chrono::steady_clock::now() - begin;
    return all.count() / times;
}

struct Task {
    const char* name;
    std::function<double()> milliseconds;
    std::vector<double> results{};
};

// The tasks take turns, and so share what else the machine does meanwhile. Prints the medians.
void measure(std::vector<Task> tasks) {
    for (int round = 0; round < rounds; ++round)
        for (Task& task : tasks)
            task.results.push_back(task.milliseconds());
    for (Task& task : tasks) {
        std::sort(task.results.begin(), task.results.end());
        std::printf("%s %f\n", task.name, task.results[rounds / 2]);
    }
}

void measure_palette() {
    std::vector<Colour> cells(cell_count(ScaleKind::hvc));
    std::generate(cells.begin(), cells.end(), [i = 0]() mutable {
        ++i;
        return RGB(2 * i, 255 - i, i);
    });
    const Bytes image = hvc_image(cells);
    volatile std::uint8_t seen = 0; // a byte of what is made, or the compiler would not make it
    const auto fwrite_all = [&] {
        std::FILE* const file = std::fopen("bench.bmp", "r+b");
        if (file == nullptr || std::fwrite(image.data(), 1, image.size(), file) != image.size() ||
            std::fclose(file) != 0)
            qFatal("the file cannot be written");
    };
    const auto write_all = [&] {
        BinaryFile file("bench.bmp", FileAccess::write);
        file.write(image);
        file.close();
    };
    write_all(); // fwrite_all makes no file
    measure({
        {"build_image", [&] { return time(50, [&] { seen = hvc_image(cells).front(); }); }},
        {"fwrite_file", [&] { return time(20, fwrite_all); }},
        {"write_file", [&] { return time(20, write_all); }},
    });
}

// Counts the repaints of a widget, so that none is left out of a measured time.
class Repaints : public QObject {
public:
    explicit Repaints(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

void measure_window() {
    Cirrava window({.tell = [](const QString& text) { qFatal("%s", qPrintable(text)); }});
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        qFatal("the window does not open");

    // The action, every event handled to its end, with one repaint of the widget each time.
    const auto measure_one = [](const char* name, QWidget& repainted, auto prepare, auto act) {
        QCoreApplication::processEvents();
        Repaints repaints(repainted);
        measure({{name, [&] {
                      prepare();
                      QCoreApplication::processEvents();
                      return time(1, [&] {
                          act();
                          QCoreApplication::processEvents();
                      });
                  }}});
        if (repaints.count != rounds)
            qFatal("not every step was painted once");
    };
    const auto mark_all = [&window](CellArray& cells) {
        const auto click = [&](int cell, Qt::MouseButton button) {
            const QPoint point = cells.cell_box(cell).topLeft() + QPoint(3, 5);
            QTest::mouseClick(window.windowHandle(), button, {}, cells.pos() + point);
        };
        click(0, Qt::LeftButton);
        click(cell_count(cells.kind()) - 1, Qt::RightButton);
    };

    auto& thermal = *window.findChild<CellArray*>("thermal_char");
    auto& red = *window.findChild<Slider*>("HScroll1");
    auto& apply = *window.findChild<Button*>("Command2");
    mark_all(thermal);
    measure_one(
        "apply", thermal, [&] { red.setValue((red.value() + 1) % 256); }, [&] { apply.click(); });

    auto& brightness = *window.findChild<Slider*>("HScroll4");
    mark_all(*window.findChild<CellArray*>("Label3"));
    measure_one(
        "brightness_step", *window.findChild<PictureBox*>("Picture1"), [] {},
        [&, darker = false]() mutable { brightness.setValue((darker = !darker) ? 4 : 6); });
}

} // namespace

int main(int argc, char* argv[]) {
    set_up_process();
    QApplication application(argc, argv);
    set_up_application(application);
    const QTemporaryDir folder; // for the files that are written
    QDir::setCurrent(folder.path());
    measure_palette();
    measure_window();
}
