#include "benchmarks/Comparison.h"
#include "benchmarks/PeakGrowth.h"
#include "benchmarks/Records.h"
#include "benchmarks/Samples.h"

#include "Domain/HighLevelOperations/Commands/CommandParams.h"
#include "Domain/HighLevelOperations/Commands/CreateClipsCommandParams.h"
#include "Domain/HighLevelOperations/Commands/GetClipsCommandReply.h"
#include "Domain/HighLevelOperations/Commands/PlayCommandParams.h"
#include "Thrift/Commands/FromCreateClipsCommandParams.h"
#include "Thrift/Commands/FromGetClipsCommandReply.h"
#include "Thrift/Commands/FromPlayCommandParams.h"
#include "Thrift/Commands/ToCreateClipsCommandParams.h"
#include "Thrift/Commands/ToGetClipsCommandReply.h"
#include "Thrift/Commands/ToPlayCommandParams.h"
#include "generated/CreateClipsCommandParams_types.h"
#include "generated/GetClipsCommandReply_types.h"
#include "generated/PlayCommandParams_types.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdio>
#include <memory>
#include <random>
#include <string>
#include <tuple>
#include <vector>

namespace Talvo::Benchmarks
{

namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Commands;
using Corvane::Zelmar::HighLevelOperations::Commands::CommandParams;
using Corvane::Zelmar::HighLevelOperations::Commands::CreateClipsCommandParams;
using Corvane::Zelmar::HighLevelOperations::Commands::GetClipsCommandReply;
using Corvane::Zelmar::HighLevelOperations::Commands::PlayCommandParams;

constexpr std::size_t ListSize = 100'000;

/// A reply can be read only once, so each conversion gets a copy, which shares the clips.
void ToWire(GetClipsCommandReply const reply, Generated::GetClipsCommandReply& wire)
{
    std::ignore = GetClipsCommandReplyToThriftConverter().To(reply, wire);
    benchmark::DoNotOptimize(wire);
}

GetClipsCommandReply ToDomain(Generated::GetClipsCommandReply const& wire)
{
    auto reply = FreshReply();
    std::ignore = Corvane::Zelmar::Serialization::Thrift::TryTo(ThriftToGetClipsCommandReplyConverter(), wire, reply);
    return reply;
}

/// A command to many players, each of another machine, in an order unrelated to that of the wire.
void AddPlayers(Comparisons& rows, std::string const& name, int const count, double const toNewRecordOfCopy)
{
    PlayCommandParams play;
    std::minstd_rand serials;
    for (int player = 0; player < count; ++player)
        play.players.emplace(Corvane::Data::Channels::Guid::Type::ChannelGuidTypePlayer,
                             static_cast<int>(serials() % 8), static_cast<unsigned int>(serials()));
    AddRecord<PlayCommandParamsToThriftConverter, ThriftToPlayCommandParamsConverter, Generated::PlayCommandParams>(
        rows, name, play, {.toNewRecordOfCopy = toNewRecordOfCopy},
        [](Generated::PlayCommandParams& wire) { wire.players.clear(); });
}

} // namespace

void PrintPeakMemoryOfReply()
{
    auto const reply = ReplyOf(ListSize);
    auto const conversion = PeakGrowth(
        [&reply]
        {
            Generated::GetClipsCommandReply wire;
            ToWire(reply, wire);
        });
    Generated::GetClipsCommandReply sent;
    ToWire(reply, sent);
    auto const wire = PeakGrowth([&sent] { benchmark::DoNotOptimize(Generated::GetClipsCommandReply(sent)); });
    std::printf(
        "GetClipsCommandReply of 100,000 clips to wire: peak memory %.0f MB beside the reply; a copy of the wire "
        "record: %.0f MB; ratio %.2f\n\n",
        conversion, wire, conversion / wire);
}

void AddCommands(Comparisons& rows)
{
    PlayCommandParams play;
    for (int player = 0; player < 8; ++player)
        play.players.emplace(Corvane::Data::Channels::Guid::Type::ChannelGuidTypePlayer, player, 310042u);
    play.speedNumerator = 1;
    AddRecord<PlayCommandParamsToThriftConverter, ThriftToPlayCommandParamsConverter, Generated::PlayCommandParams>(
        rows, "play command", play, {.toNewRecordOfCopy = 1.3},
        [](Generated::PlayCommandParams& wire) { wire.players.clear(); });

    AddPlayers(rows, "command to 100 players", 100, 2.1);
    AddPlayers(rows, "command to 1,000 players", 1'000, 3.2);

    // New parameters generate an identifier, which is part of the time of a conversion to new parameters.
    benchmark::RegisterBenchmark("new command parameters",
                                 [](benchmark::State& state)
                                 {
                                     for (auto _ : state) benchmark::DoNotOptimize(CommandParams());
                                 });
    rows.push_back({"new command parameters", "wire to play command", {}});

    CreateClipsCommandParams create;
    create.clips.resize(1'000);
    for (auto& clip : create.clips) clip.clip = Tests::FullClip();
    AddRecord<CreateClipsCommandParamsToThriftConverter, ThriftToCreateClipsCommandParamsConverter,
              Generated::CreateClipsCommandParams>(rows, "command with 1,000 clips", create, {},
                                                   [](Generated::CreateClipsCommandParams& wire)
                                                   { wire.clips.clear(); });

    // The result of a conversion is destroyed outside the measured time.
    auto const reply = std::make_shared<GetClipsCommandReply>(ReplyOf(ListSize));
    auto const sent = std::make_shared<Generated::GetClipsCommandReply>();
    ToWire(*reply, *sent);
    benchmark::RegisterBenchmark("reply of 100,000 to wire",
                                 [reply](benchmark::State& state)
                                 {
                                     for (auto _ : state)
                                     {
                                         auto wire = std::make_unique<Generated::GetClipsCommandReply>();
                                         ToWire(*reply, *wire);
                                         state.PauseTiming();
                                         wire.reset();
                                         state.ResumeTiming();
                                     }
                                 });
    benchmark::RegisterBenchmark("write reply of 100,000",
                                 [sent](benchmark::State& state)
                                 {
                                     auto const buffer = std::make_shared<WireBuffer>();
                                     WireProtocol protocol(buffer);
                                     sent->write(&protocol);
                                     for (auto _ : state)
                                     {
                                         buffer->resetBuffer();
                                         sent->write(&protocol);
                                         benchmark::ClobberMemory();
                                     }
                                 });
    benchmark::RegisterBenchmark("wire to reply of 100,000",
                                 [sent](benchmark::State& state)
                                 {
                                     for (auto _ : state)
                                     {
                                         auto received = std::make_unique<GetClipsCommandReply>(ToDomain(*sent));
                                         benchmark::DoNotOptimize(received);
                                         state.PauseTiming();
                                         received.reset();
                                         state.ResumeTiming();
                                     }
                                 });
    benchmark::RegisterBenchmark("read reply of 100,000",
                                 [sent](benchmark::State& state)
                                 {
                                     auto const buffer = std::make_shared<WireBuffer>();
                                     WireProtocol protocol(buffer);
                                     sent->write(&protocol);
                                     for (auto _ : state)
                                     {
                                         buffer->Rewind();
                                         auto wire = std::make_unique<Generated::GetClipsCommandReply>();
                                         wire->read(&protocol);
                                         benchmark::DoNotOptimize(wire);
                                         state.PauseTiming();
                                         wire.reset();
                                         state.ResumeTiming();
                                     }
                                 });
    rows.insert(rows.end(), {{"reply of 100,000 to wire", "write reply of 100,000", 0.60},
                             {"wire to reply of 100,000", "read reply of 100,000", 0.45}});

    AddLinear(rows, "clips of a reply to wire", 1'000, ListSize,
              [](std::size_t const count)
              {
                  return [source = std::make_shared<GetClipsCommandReply>(ReplyOf(count))]
                  {
                      Generated::GetClipsCommandReply wire;
                      ToWire(*source, wire);
                      return wire;
                  };
              });
}

} // namespace Talvo::Benchmarks
