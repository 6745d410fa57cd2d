#include "benchmarks/Comparison.h"

#include <malloc.h>

#include <limits>

namespace
{

using namespace Talvo::Benchmarks;

Comparisons Add()
{
    PrintPeakMemory(); // first, in a heap that nothing has used
    PrintPeakMemoryOfReply();

    // A warm heap: long lists get memory that the process has already, as in a server that runs on. What the kernel takes
    // to hand out new memory is none of ours, and as much for every way to fill it.
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());

    Comparisons rows;
    AddTimeCodes(rows);
    AddClips(rows);
    AddStatesAndEvents(rows);
    AddPlaylists(rows);
    AddCommands(rows);
    AddEveryRecord();
    return rows;
}

} // namespace

int main(int argc, char** argv)
{
    return Run(argc, argv, &Add);
}
