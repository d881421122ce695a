#include "palette_files/palette_image.h"
#include "platform/binary_file.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>

namespace {

using namespace cirrava;

std::vector<Colour> rainbow() {
    std::vector<Colour> cells;
    for (int i = 0; i < cell_count(ScaleKind::hvc); ++i)
        cells.push_back(RGB(2 * i, 255 - i, i));
    return cells;
}

Bytes hvc_file() {
    const auto cells = rainbow();
    return hvc_image(cells, cells);
}

void copy_hvc_image(benchmark::State& state) {
    const Bytes image = hvc_file();
    for (auto _ : state) {
        Bytes copy = image;
        benchmark::DoNotOptimize(copy.data());
        benchmark::ClobberMemory();
    }
}

void build_hvc_image(benchmark::State& state) {
    auto cells = rainbow();
    for (auto _ : state) {
        Bytes image = hvc_image(cells, cells);
        benchmark::DoNotOptimize(image.data());
        benchmark::ClobberMemory();
    }
}

void fwrite_hvc_file(benchmark::State& state) {
    const Bytes image = hvc_file();
    BinaryFile("bench.bmp", FileAccess::read_write).close(); // is there from now on
    for (auto _ : state) {
        std::FILE* const file = std::fopen("bench.bmp", "r+b");
        if (file == nullptr || std::fwrite(image.data(), 1, image.size(), file) != image.size() ||
            std::fclose(file) != 0) {
            state.SkipWithError("the file cannot be written");
            break;
        }
    }
}

void write_hvc_file(benchmark::State& state) {
    const Bytes image = hvc_file();
    for (auto _ : state) {
        BinaryFile file("bench.bmp", FileAccess::read_write);
        file.write(image);
        file.close();
    }
}

} // namespace

BENCHMARK(copy_hvc_image);
BENCHMARK(build_hvc_image);
BENCHMARK(fwrite_hvc_file)->UseRealTime();
BENCHMARK(write_hvc_file)->UseRealTime();
