#include "promises.h"

#include <algorithm>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

// Whole processes, from their start to the first painted frame. A program of its own and without
// Qt, because the peak memory of a process counts from that of the one that started it.
namespace {

extern "C" char** environ;

// Runs `program` to its end and returns its peak memory in KiB, or a negative number on failure.
long run(const char* program) {
    const char* const arguments[]{program, nullptr};
    pid_t process = 0;
    if (posix_spawn(&process, program, nullptr, nullptr, const_cast<char* const*>(arguments),
                    environ) != 0)
        return -1;
    int status = 0;
    rusage usage{};
    if (wait4(process, &status, 0, &usage) != process || status != 0)
        return -1;
    return usage.ru_maxrss;
}

void start(benchmark::State& state, const char* program) {
    long peak = 0;
    for (auto _ : state) {
        const long memory = run(program);
        if (memory < 0) {
            state.SkipWithError("the program cannot be run");
            break;
        }
        peak = std::max(peak, memory);
    }
    state.counters["peak_KiB"] = static_cast<double>(peak);
}

} // namespace

BENCHMARK_CAPTURE(start, empty, EmptyWindow)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(start, text, TextWindow)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(start, program, ProgramWindow)->UseRealTime()->Unit(benchmark::kMillisecond);

int main(int argc, char* argv[]) {
    benchmark::Initialize(&argc, argv);
    promises::Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    const promises::Figure empty = medians["start/empty"];
    const promises::Figure text = medians["start/text"];
    const promises::Figure program = medians["start/program"];
    promises::tell("Start of a window with a line in each font, against empty",
                   text.milliseconds / empty.milliseconds, "times");
    promises::tell("Peak memory of that, against an empty window", text.peak_KiB / empty.peak_KiB,
                   "times");
    promises::tell("Start to the first frame, against an empty window",
                   program.milliseconds / empty.milliseconds, "times", 1.25);
    promises::tell("Peak memory of that, against an empty window",
                   program.peak_KiB / empty.peak_KiB, "times", 1.2);
    return medians.failed ? 1 : 0;
}
