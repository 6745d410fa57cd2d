#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Talvo::Benchmarks
{

/// One row of the printed table: the time of a benchmark, absolute and relative to another one of the same run.
struct Comparison
{
    std::string measured;         ///< the name of the benchmark
    std::string against;          ///< the name of the other benchmark
    std::optional<double> target; ///< the highest ratio of their times that meets the target
};

using Comparisons = std::vector<Comparison>;

/// Runs the benchmarks that `add` registers, with the options of the command line, and prints the rows that it returns.
/// Returns the exit status.
int Run(int argc, char** argv, Comparisons (*add)());

/// Makes the process keep its memory from here on, so that long lists get warm memory, as in a long-running server. The
/// time in which the kernel provides new memory does not depend on our code, and is the same for every way to fill it.
void KeepHeap();

// Each function registers its benchmarks and adds the rows that show them.
void AddTimeCodes(Comparisons& rows);
void AddClips(Comparisons& rows);
void AddStatesAndEvents(Comparisons& rows);
void AddPlaylists(Comparisons& rows);
void AddCommands(Comparisons& rows);
void AddWireProtocol(Comparisons& rows);

/// Registers the benchmarks of every record that converts both ways, as "every/RECORD/WHAT".
void AddEveryRecord();

/// Prints the peak memory of converting 100,000 clips to a wire list.
void PrintPeakMemory();

/// Prints the peak memory of converting a reply of 100,000 clips to the wire.
void PrintPeakMemoryOfReply();

} // namespace Talvo::Benchmarks
