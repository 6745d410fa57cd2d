#pragma once

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

namespace Talvo::Benchmarks
{

/// The peak growth of memory in MB while `work` runs. It runs in a separate process, which has its own high-water mark.
inline double PeakGrowth(auto const& work)
{
    auto const peak = []
    {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return static_cast<double>(usage.ru_maxrss) / 1024;
    };

    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) return 0;
    if (fork() == 0)
    {
        auto const before = peak();
        work();
        auto const growth = peak() - before;
        _exit(write(ends[1], &growth, sizeof(growth)) == sizeof(growth) ? 0 : 1);
    }
    close(ends[1]);
    double growth = 0;
    if (read(ends[0], &growth, sizeof(growth)) != sizeof(growth)) growth = 0;
    close(ends[0]);
    wait(nullptr);
    return growth;
}

} // namespace Talvo::Benchmarks
