#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>

// The medians of benchmarks, told beside what the program promises.
namespace promises {

struct Figure {
    double milliseconds = 0;
    double peak_KiB = 0;
};

class Medians : public benchmark::ConsoleReporter {
public:
    Medians() : ConsoleReporter(OO_None) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            failed = failed || run.error_occurred;
            if (run.aggregate_name != "median")
                continue;
            Figure& figure = figures_[run.run_name.function_name];
            figure.milliseconds =
                run.GetAdjustedRealTime() * (run.time_unit == benchmark::kNanosecond ? 1e-6 : 1);
            const auto peak = run.counters.find("peak_KiB");
            if (peak != run.counters.end())
                figure.peak_KiB = peak->second;
        }
    }

    // All zeros for a benchmark that did not run.
    Figure operator[](const char* benchmark) const {
        const auto found = figures_.find(benchmark);
        return found == figures_.end() ? Figure{} : found->second;
    }

    bool failed = false;

private:
    std::map<std::string, Figure> figures_;
};

inline void tell(const char* what, double figure, const char* unit) {
    std::printf("%-58s %6.2f %-5s\n", what, figure, unit);
}

inline void tell(const char* what, double figure, const char* unit, double limit) {
    std::printf("%-58s %6.2f %-5s limit %.2f  %s\n", what, figure, unit, limit,
                figure <= limit ? "kept" : "not kept");
}

} // namespace promises
