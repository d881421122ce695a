#include "ui/cirrava.h"

#include <QTest>
#include <benchmark/benchmark.h>

namespace {

using namespace cirrava;

// The window as a person has it before them, every event handled to its end, the repaint included.
class OpenWindow {
public:
    OpenWindow() {
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            throw std::runtime_error("the window does not open");
    }

    template <class Control> Control& find(const char* name) {
        return *window.findChild<Control*>(name);
    }

    void select(const char* scale, int start, int end) {
        auto& cells = find<CellArray>(scale);
        QTest::mouseClick(&cells, Qt::LeftButton, {}, middle_of(cells, start));
        QTest::mouseClick(&cells, Qt::RightButton, {}, middle_of(cells, end));
    }

    Cirrava window{{.tell = [](const QString& text) { qFatal("%s", qPrintable(text)); }}};

private:
    static QPoint middle_of(CellArray& cells, int cell) {
        return cells.cell_box(cell).topLeft() + QPoint(3, 5);
    }
};

// Counts the repaints, so that none is left out of a measured time.
class Repaints : public QObject {
public:
    explicit Repaints(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    benchmark::IterationCount count = 0;
};

void apply_to_all_thermal_cells(benchmark::State& state) {
    OpenWindow open;
    open.select("thermal_char", 0, 319);
    auto& red = open.find<NumberBar>("HScroll1");
    auto& apply = open.find<Button>("Command2");
    QCoreApplication::processEvents();
    Repaints repaints(open.find<CellArray>("thermal_char"));
    int value = 0;
    for (auto _ : state) {
        state.PauseTiming();
        red.setValue(++value % 256);
        QCoreApplication::processEvents();
        state.ResumeTiming();
        apply.click();
        QCoreApplication::processEvents();
    }
    if (repaints.count != state.iterations())
        state.SkipWithError("not every step was painted once");
}

void brightness_step(benchmark::State& state) {
    OpenWindow open;
    open.select("Label3", 0, 99);
    auto& brightness = open.find<NumberBar>("HScroll4");
    QCoreApplication::processEvents();
    Repaints repaints(open.find<PictureBox>("Picture1"));
    bool darker = false;
    for (auto _ : state) {
        darker = !darker;
        brightness.setValue(darker ? 4 : 6);
        QCoreApplication::processEvents();
    }
    if (repaints.count != state.iterations())
        state.SkipWithError("not every step was painted once");
}

} // namespace

BENCHMARK(apply_to_all_thermal_cells)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(brightness_step)->UseRealTime()->Unit(benchmark::kMillisecond);
