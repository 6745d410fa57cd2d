#include "benchmarks/Comparison.h"
#include "benchmarks/PeakGrowth.h"
#include "benchmarks/Records.h"
#include "benchmarks/Samples.h"

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "generated/Clip_types.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdio>
#include <memory>
#include <tuple>
#include <vector>

namespace Talvo::Benchmarks
{

namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Data::Clips;
using Corvane::Data::Clips::Clip;

constexpr std::size_t ListSize = 100'000;

std::vector<Generated::Clip> ToWire(std::vector<Clip> const& clips)
{
    ClipToThriftConverter const converter;
    std::vector<Generated::Clip> wire;
    wire.reserve(clips.size());
    for (auto const& clip : clips) std::ignore = converter.To(clip, wire.emplace_back());
    return wire;
}

void LookUp(Clip::Essence const& essence)
{
    using EnumConverter::ToGeneratedEnum;
    benchmark::DoNotOptimize(ToGeneratedEnum(essence.Type()));
    benchmark::DoNotOptimize(ToGeneratedEnum(essence.recordingStatus));
    benchmark::DoNotOptimize(ToGeneratedEnum(essence.archiveStatus));
    benchmark::DoNotOptimize(ToGeneratedEnum(essence.Metadata()));
    benchmark::DoNotOptimize(ToGeneratedEnum(essence.blockSize));
    benchmark::DoNotOptimize(ToGeneratedEnum(essence.VideoCompressionType()));
    benchmark::DoNotOptimize(ToGeneratedEnum(essence.AudioCompressionType()));
    benchmark::DoNotOptimize(ToGeneratedEnum(essence.VideoCompressionInfo()));
    benchmark::DoNotOptimize(ToGeneratedEnum(essence.audioConfiguration));
}

void LookUp(Clip const& clip)
{
    using EnumConverter::ToGeneratedEnum;
    benchmark::DoNotOptimize(ToGeneratedEnum(clip.trainStatus));
    benchmark::DoNotOptimize(ToGeneratedEnum(clip.sourceEngine));
    benchmark::DoNotOptimize(ToGeneratedEnum(clip.uhdDivisionMode));
    benchmark::DoNotOptimize(ToGeneratedEnum(clip.hdrProfile));
    benchmark::DoNotOptimize(ToGeneratedEnum(clip.alphaArchiveStatus));
    benchmark::DoNotOptimize(ToGeneratedEnum(clip.archiveStatus));
    benchmark::DoNotOptimize(ToGeneratedEnum(clip.fillAndKeyStatus));
    benchmark::DoNotOptimize(ToGeneratedEnum(clip.camera));
    benchmark::DoNotOptimize(ToGeneratedEnum(clip.afdAspectRatio));
    benchmark::DoNotOptimize(ToGeneratedEnum(clip.codedFrameAspectRatio));
    benchmark::DoNotOptimize(ToGeneratedEnum(clip.videoFormat));
    benchmark::DoNotOptimize(ToGeneratedEnum(clip.VideoStandard()));
    benchmark::DoNotOptimize(ToGeneratedEnum(clip.userTimecodeType));
    benchmark::DoNotOptimize(ToGeneratedEnum(clip.primaryTimecode));
    benchmark::DoNotOptimize(ToGeneratedEnum(clip.rating));
    benchmark::DoNotOptimize(ToGeneratedEnum(clip.preferentialCamera));
    LookUp(clip.intraEssence);
    LookUp(clip.longGopEssence);
}

} // namespace

void PrintPeakMemory()
{
    std::vector<Clip> const clips(ListSize, ClipWithTwoEssences());
    auto const conversion = PeakGrowth([&clips] { benchmark::DoNotOptimize(ToWire(clips)); });
    auto const wire = ToWire(clips);
    auto const copy = PeakGrowth([&wire] { benchmark::DoNotOptimize(std::vector(wire)); });
    std::printf("100,000 clips to wire: peak memory %.0f MB; a copy of the wire list: %.0f MB; ratio %.2f\n\n",
                conversion, copy, conversion / copy);
}

void AddClips(Comparisons& rows)
{
    AddRecord<ClipToThriftConverter, ThriftToClipConverter, Generated::Clip>(
        rows, "clip", ClipWithTwoEssences(), {.toNewRecord = 0.50, .toUsedRecord = 0.30, .toDomain = 0.20},
        [](Generated::Clip& wire) { wire.userBits.clear(); });

    benchmark::RegisterBenchmark("34 enumeration lookups",
                                 [](benchmark::State& state)
                                 {
                                     auto const clip = ClipWithTwoEssences();
                                     for (auto _ : state) LookUp(clip);
                                 });

    // The sources are built, and the results destroyed, outside the measured time.
    benchmark::RegisterBenchmark("100,000 clips to wire",
                                 [](benchmark::State& state)
                                 {
                                     std::vector<Clip> const clips(ListSize, ClipWithTwoEssences());
                                     for (auto _ : state)
                                     {
                                         auto wire = ToWire(clips);
                                         benchmark::DoNotOptimize(wire);
                                         state.PauseTiming();
                                         wire = {};
                                         state.ResumeTiming();
                                     }
                                 });
    benchmark::RegisterBenchmark("copy of 100,000 wire clips",
                                 [](benchmark::State& state)
                                 {
                                     auto const wire = ToWire(std::vector<Clip>(ListSize, ClipWithTwoEssences()));
                                     for (auto _ : state)
                                     {
                                         auto copy = wire;
                                         benchmark::DoNotOptimize(copy);
                                         state.PauseTiming();
                                         copy = {};
                                         state.ResumeTiming();
                                     }
                                 });
    benchmark::RegisterBenchmark("write 100,000 clips",
                                 [](benchmark::State& state)
                                 {
                                     auto const wire = ToWire(std::vector<Clip>(ListSize, ClipWithTwoEssences()));
                                     auto const buffer = std::make_shared<WireBuffer>();
                                     WireProtocol protocol(buffer);
                                     for (auto const& clip : wire) clip.write(&protocol);
                                     for (auto _ : state)
                                     {
                                         buffer->resetBuffer();
                                         for (auto const& clip : wire) clip.write(&protocol);
                                         benchmark::ClobberMemory();
                                     }
                                 });

    rows.insert(rows.end(), {{"34 enumeration lookups", "clip to wire, used record", {}},
                             {"100,000 clips to wire", "write 100,000 clips", {}},
                             {"100,000 clips to wire", "copy of 100,000 wire clips", {}}});
}

} // namespace Talvo::Benchmarks
