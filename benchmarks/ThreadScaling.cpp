// Compares the conversions of two threads with those of one: clips to new wire records and back. It also prints the
// share of the processors that the threads did not get, because that share lowers the ratio.

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "generated/Clip_types.h"
#include "tests/Thrift/Data/Clips/Values.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <barrier>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <functional>
#include <thread>
#include <tuple>

namespace
{

using namespace Talvo;
using namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips;
using Seconds = std::chrono::duration<double>;

constexpr Seconds RunTime{0.1};
constexpr std::size_t Repetitions = 51;

/// The threads that convert in the runs of a repetition: first each alone, because the speed of a thread also depends
/// on the addresses of its stack and heap, and then both.
constexpr std::array<std::array<bool, 2>, 3> Runs{{{true, false}, {false, true}, {true, true}}};

struct State
{
    std::barrier<> barrier{3}; ///< each run is between two passages
    std::atomic<bool> stop = false;
    std::array<std::atomic<std::size_t>, 2> counts{}; ///< the numbers of conversions in the last run
};

void Work(State& state, std::size_t const self)
{
    ClipToThriftConverter const toWire;
    ThriftToClipConverter const toDomain;
    auto clip = Tests::FullClip();
    for (std::size_t run = 0; run < Repetitions * Runs.size(); ++run)
    {
        std::size_t count = 0;
        state.barrier.arrive_and_wait();
        for (; Runs[run % Runs.size()][self] && !state.stop.load(std::memory_order_relaxed); ++count)
        {
            Generated::Clip wire;
            std::ignore = toWire.To(clip, wire);
            std::ignore = toDomain.To(wire, clip);
        }
        state.counts[self] = count;
        state.barrier.arrive_and_wait();
    }
}

struct Throughput
{
    double aSecond;          ///< conversions per second
    double aProcessorSecond; ///< conversions per second of processor time
};

Throughput Measure(State& state)
{
    state.stop = false;
    auto const start = std::chrono::steady_clock::now();
    auto const processorStart = std::clock();
    state.barrier.arrive_and_wait();
    std::this_thread::sleep_for(RunTime);
    state.stop = true;
    state.barrier.arrive_and_wait();

    Seconds const time = std::chrono::steady_clock::now() - start;
    auto const processorTime = static_cast<double>(std::clock() - processorStart) / CLOCKS_PER_SEC;
    auto const count = static_cast<double>(state.counts[0] + state.counts[1]);
    return {count / time.count(), count / processorTime};
}

double Median(std::array<double, Repetitions> ratios)
{
    std::nth_element(ratios.begin(), ratios.begin() + Repetitions / 2, ratios.end());
    return ratios[Repetitions / 2];
}

} // namespace

int main()
{
    State state;
    std::jthread const first(&Work, std::ref(state), 0);
    std::jthread const second(&Work, std::ref(state), 1);

    std::array<double, Repetitions> ratios{};
    std::array<double, Repetitions> processorRatios{};
    for (std::size_t i = 0; i < Repetitions; ++i)
    {
        auto const one = Measure(state);
        auto const other = Measure(state);
        auto const both = Measure(state);
        ratios[i] = 2 * both.aSecond / (one.aSecond + other.aSecond);
        processorRatios[i] = 4 * both.aProcessorSecond / (one.aProcessorSecond + other.aProcessorSecond);
    }
    std::printf("two threads convert %.2f times what one does, target 1.90 (%.2f times in the time that they ran)\n",
                Median(ratios), Median(processorRatios));
}
