#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Talvo::Benchmarks
{

/// One row of the printed table: how long a benchmark takes, in itself and against another one of the same run.
struct Comparison
{
    std::string measured;         ///< name of the benchmark
    std::string against;          ///< name of the other one
    std::optional<double> target; ///< the ratio of their times should be at most this
};

using Comparisons = std::vector<Comparison>;

/// Runs what `add` registers, with the options of the command line, and prints the rows it gives. The status to exit with.
int Run(int argc, char** argv, Comparisons (*add)());

/// From here on the process keeps the memory it has: long lists get memory that is warm, as in a server that runs on. What
/// the kernel takes to hand out new memory is none of ours, and as much for every way to fill it.
void KeepHeap();

// Each registers its benchmarks and adds the rows that show them.
void AddTimeCodes(Comparisons& rows);
void AddClips(Comparisons& rows);
void AddStatesAndEvents(Comparisons& rows);
void AddPlaylists(Comparisons& rows);
void AddCommands(Comparisons& rows);
void AddWireProtocol(Comparisons& rows);

/// Registers what is measured of every record that converts both ways, as "every/RECORD/WHAT".
void AddEveryRecord();

/// Prints what memory 100,000 clips take on their way to a wire list, at the highest.
void PrintPeakMemory();

/// Prints what memory a reply of 100,000 clips takes on its way to the wire, at the highest.
void PrintPeakMemoryOfReply();

} // namespace Talvo::Benchmarks
