#include "promises.h"

#include <algorithm>
#include <chrono>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// Whole processes, timed from their start to the first painted frame. A program of its own and
// without Qt, because the peak memory of a process counts from that of the one that started it.
namespace {

extern "C" char** environ;

struct Start {
    double seconds = -1; // to the first painted frame, below 0 on failure
    long peak_KiB = 0;
};

// Runs `program`, which writes a byte when its first frame is painted, and ends.
Start run(const char* program) {
    int ends[2]{};
    if (pipe(ends) != 0)
        return {};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);
    const char* const arguments[]{program, nullptr};
    pid_t process = 0;
    const auto begin = std::chrono::steady_clock::now();
    const int failed = posix_spawn(&process, program, &actions, nullptr,
                                   const_cast<char* const*>(arguments), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    char byte = 0;
    const bool painted = failed == 0 && read(ends[0], &byte, 1) == 1;
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
    close(ends[0]);
    int status = 0;
    rusage usage{};
    if (!painted || wait4(process, &status, 0, &usage) != process || status != 0)
        return {};
    return {seconds.count(), usage.ru_maxrss};
}

void start(benchmark::State& state, const char* program) {
    long peak = 0;
    for (auto _ : state) {
        const Start result = run(program);
        if (result.seconds < 0) {
            state.SkipWithError("the program does not start");
            break;
        }
        state.SetIterationTime(result.seconds);
        peak = std::max(peak, result.peak_KiB);
    }
    state.counters["peak_KiB"] = static_cast<double>(peak);
}

} // namespace

BENCHMARK_CAPTURE(start, empty, EmptyWindow)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(start, line, LineWindow)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(start, program, ProgramWindow)->UseManualTime()->Unit(benchmark::kMillisecond);

int main(int argc, char* argv[]) {
    benchmark::Initialize(&argc, argv);
    promises::Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    const promises::Figure empty = medians["start/empty"];
    const promises::Figure line = medians["start/line"];
    const promises::Figure program = medians["start/program"];
    promises::tell("Start to the first frame", program.milliseconds, "ms");
    promises::tell("... against a window with one line of text",
                   program.milliseconds / line.milliseconds, "times", 1.25);
    promises::tell("... against an empty window", program.milliseconds / empty.milliseconds,
                   "times");
    promises::tell("Peak memory of that", program.peak_KiB / 1024, "MiB");
    promises::tell("... against a window with one line of text", program.peak_KiB / line.peak_KiB,
                   "times", 1.1);
    promises::tell("... against an empty window", program.peak_KiB / empty.peak_KiB, "times");
    return medians.failed ? 1 : 0;
}
