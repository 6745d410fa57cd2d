#include "benchmarks/Comparison.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace Talvo::Benchmarks
{

namespace
{

/// Stores the times of all repetitions.
class TimesReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(Context const&) override { return true; }

    void ReportRuns(std::vector<Run> const& runs) override
    {
        for (auto const& run : runs)
        {
            if (run.run_type == Run::RT_Iteration)
                times_[run.run_name.function_name].push_back(run.cpu_accumulated_time /
                                                             static_cast<double>(run.iterations));
        }
    }

    /// The median in seconds of processor time, 0 for a benchmark that was not run.
    double Median(std::string const& name) const
    {
        auto const found = times_.find(name);
        if (found == times_.end()) return 0;
        auto times = found->second;
        auto const middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
        std::nth_element(times.begin(), middle, times.end());
        return *middle;
    }

private:
    std::map<std::string, std::vector<double>> times_;
};

std::string Text(char const* const format, double const number)
{
    char text[32];
    std::snprintf(text, sizeof(text), format, number);
    return text;
}

std::string Duration(double const seconds)
{
    return seconds < 1e-3 ? Text("%.1f ns", seconds * 1e9) : Text("%.1f ms", seconds * 1e3);
}

void Print(Comparisons const& rows, TimesReporter const& times)
{
    std::printf("%-29s %10s   %-29s %10s %6s %6s\n", "measured", "time", "against", "time", "ratio", "target");
    for (auto const& row : rows)
    {
        auto const measured = times.Median(row.measured);
        auto const against = times.Median(row.against);
        if (measured <= 0 || against <= 0) continue; // filtered out on the command line
        auto const ratio = measured / against;
        auto const target = row.target ? Text("%.2f", *row.target) : "";
        auto const* const verdict = !row.target ? "" : ratio <= *row.target ? "met" : "MISSED";
        std::printf("%-29s %10s   %-29s %10s %6.2f %6s %s\n", row.measured.c_str(), Duration(measured).c_str(),
                    row.against.c_str(), Duration(against).c_str(), ratio, target.c_str(), verdict);
    }
}

} // namespace

void KeepHeap()
{
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
}

int Run(int const argc, char** const argv, Comparisons (*const add)())
{
    // Short repetitions in random order, so that other load on the machine affects all benchmarks equally. Options of
    // the command line come later and take precedence.
    std::string defaults[] = {"--benchmark_repetitions=25", "--benchmark_min_time=0.01",
                              "--benchmark_enable_random_interleaving=true"};
    std::vector<char*> arguments(argv, argv + argc);
    for (auto& argument : defaults) arguments.insert(arguments.begin() + 1, argument.data());
    auto count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;

    auto const rows = add();
    TimesReporter times;
    benchmark::RunSpecifiedBenchmarks(&times);
    Print(rows, times);
    return 0;
}

} // namespace Talvo::Benchmarks
