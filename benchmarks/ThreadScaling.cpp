// How many conversions two threads do against one: clips to new wire records and back. Each share of the machine that the
// threads did not get is told, since it is missing in the ratio.

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "generated/Clip_types.h"
#include "tests/Thrift/Data/Clips/Values.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <thread>
#include <tuple>
#include <vector>

namespace
{

using namespace Talvo;
using namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips;
using Seconds = std::chrono::duration<double>;

constexpr Seconds RunTime{0.2};
constexpr std::size_t Repetitions = 25;

struct Throughput
{
    double aSecond = 0;          ///< conversions
    double aProcessorSecond = 0; ///< the same, of the time that the threads ran
};

std::size_t ConvertUntil(std::atomic<bool> const& stop)
{
    ClipToThriftConverter const toWire;
    ThriftToClipConverter const toDomain;
    auto clip = Tests::FullClip();
    std::size_t count = 0;
    for (; !stop.load(std::memory_order_relaxed); ++count)
    {
        Generated::Clip wire;
        std::ignore = toWire.To(clip, wire);
        std::ignore = toDomain.To(wire, clip);
    }
    return count;
}

Throughput Measure(std::size_t const threadCount)
{
    std::atomic<bool> stop = false;
    std::vector<std::size_t> counts(threadCount);
    std::vector<std::thread> threads;
    auto const start = std::chrono::steady_clock::now();
    auto const processorStart = std::clock();
    for (auto& count : counts) threads.emplace_back([&stop, &count] { count = ConvertUntil(stop); });
    std::this_thread::sleep_for(RunTime);
    stop = true;
    for (auto& thread : threads) thread.join();

    Seconds const time = std::chrono::steady_clock::now() - start;
    auto const processorTime = static_cast<double>(std::clock() - processorStart) / CLOCKS_PER_SEC;
    double total = 0;
    for (auto const count : counts) total += static_cast<double>(count);
    return {total / time.count(), total / processorTime};
}

double Median(std::array<double, Repetitions> ratios)
{
    std::nth_element(ratios.begin(), ratios.begin() + Repetitions / 2, ratios.end());
    return ratios[Repetitions / 2];
}

} // namespace

int main()
{
    std::array<double, Repetitions> ratios{};
    std::array<double, Repetitions> processorRatios{};
    for (std::size_t i = 0; i < Repetitions; ++i)
    {
        auto const one = Measure(1);
        auto const two = Measure(2);
        ratios[i] = two.aSecond / one.aSecond;
        processorRatios[i] = 2 * two.aProcessorSecond / one.aProcessorSecond;
    }
    std::printf("two threads convert %.2f times what one does, target 1.90 (%.2f times in the time that they ran)\n",
                Median(ratios), Median(processorRatios));
}
