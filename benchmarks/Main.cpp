#include "benchmarks/Comparison.h"

namespace
{

using namespace Talvo::Benchmarks;

Comparisons Add()
{
    PrintPeakMemory(); // first, while the heap is unused
    PrintPeakMemoryOfReply();

    KeepHeap();
    Comparisons rows;
    AddTimeCodes(rows);
    AddClips(rows);
    AddStatesAndEvents(rows);
    AddPlaylists(rows);
    AddCommands(rows);
    AddWireProtocol(rows);
    AddEveryRecord();
    return rows;
}

} // namespace

int main(int argc, char** argv)
{
    return Run(argc, argv, &Add);
}
