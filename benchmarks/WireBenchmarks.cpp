// Compares BinaryWriter and BinaryReader with Thrift's own binary protocol on the same records.

#include "benchmarks/Comparison.h"
#include "benchmarks/Records.h"
#include "benchmarks/Samples.h"

#include "Thrift/Commands/FromGetClipsCommandReply.h"
#include "Thrift/Data/Channels/FromPlayerState.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Sequences/FromPlaylist.h"
#include "Thrift/Notifier/FromClipCreationFinishedEventArgs.h"
#include "Thrift/Wire/BinaryReader.h"
#include "Thrift/Wire/BinaryWriter.h"
#include "generated/ClipCreationEventArgs_types.h"
#include "generated/Clip_types.h"
#include "generated/GetClipsCommandReply_types.h"
#include "generated/PlayerState_types.h"
#include "generated/Playlist_types.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <tuple>

namespace Talvo::Benchmarks
{

namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift;

/// Converts `value` with `TToWire`.
template<typename TWire, typename TToWire>
std::shared_ptr<TWire const> RecordOf(TToWire const& converter, auto const& value)
{
    auto const wire = std::make_shared<TWire>();
    std::ignore = converter.To(value, *wire);
    return wire;
}

/// Registers the benchmarks of one record and adds its rows. AddWrite() and AddRead() have registered those of Thrift's
/// protocol under `name`, except for the used record.
template<typename TWire>
void AddBinary(Comparisons& rows, std::string const& name, std::shared_ptr<TWire const> const& sent)
{
    auto const write = "write " + name;
    auto const read = "read " + name;
    auto const readUsed = "read used " + name;
    auto const writer = write + ", BinaryWriter";
    auto const reader = read + ", BinaryReader";
    auto const readerUsed = readUsed + ", BinaryReader";

    benchmark::RegisterBenchmark(writer.c_str(),
                                 [sent](benchmark::State& state)
                                 {
                                     Wire::BinaryWriter binary;
                                     for (auto _ : state)
                                     {
                                         binary.Truncate();
                                         sent->write(&binary);
                                         benchmark::ClobberMemory();
                                     }
                                 });
    benchmark::RegisterBenchmark(reader.c_str(),
                                 [sent](benchmark::State& state)
                                 {
                                     Wire::BinaryWriter bytes;
                                     sent->write(&bytes);
                                     for (auto _ : state)
                                     {
                                         Wire::BinaryReader binary(bytes.Bytes());
                                         TWire wire;
                                         wire.read(&binary);
                                         benchmark::DoNotOptimize(wire);
                                     }
                                 });
    benchmark::RegisterBenchmark(readUsed.c_str(),
                                 [sent](benchmark::State& state)
                                 {
                                     auto const buffer = std::make_shared<WireBuffer>();
                                     WireProtocol protocol(buffer);
                                     sent->write(&protocol);
                                     TWire used;
                                     for (auto _ : state)
                                     {
                                         buffer->Rewind();
                                         used.read(&protocol);
                                         benchmark::DoNotOptimize(used);
                                     }
                                 });
    benchmark::RegisterBenchmark(readerUsed.c_str(),
                                 [sent](benchmark::State& state)
                                 {
                                     Wire::BinaryWriter bytes;
                                     sent->write(&bytes);
                                     TWire used;
                                     for (auto _ : state)
                                     {
                                         Wire::BinaryReader binary(bytes.Bytes());
                                         used.read(&binary);
                                         benchmark::DoNotOptimize(used);
                                     }
                                 });
    rows.insert(rows.end(), {{writer, write, 0.25}, {reader, read, 0.75}, {readerUsed, readUsed, {}}});
}

} // namespace

void AddWireProtocol(Comparisons& rows)
{
    AddBinary(rows, "clip",
              RecordOf<Data::Clips::Generated::Clip>(Data::Clips::ClipToThriftConverter(), ClipWithTwoEssences()));
    AddBinary(rows, "player state",
              RecordOf<Data::Channels::Generated::PlayerState>(Data::Channels::PlayerStateToThriftConverter(),
                                                               Tests::FullPlayerState()));
    AddBinary(
        rows, "playlist of 500",
        RecordOf<Data::Sequences::Generated::Playlist>(Data::Sequences::PlaylistToThriftConverter(), PlaylistOf(500)));
    AddBinary(rows, "clip creation event",
              RecordOf<Notifier::Generated::ClipCreationFinishedEventArgs>(
                  Notifier::ClipCreationFinishedEventArgsToThriftConverter(),
                  CreationOf(Tests::NestedClip(), Tests::NestedClip())));

    auto const reply = RecordOf<Commands::Generated::GetClipsCommandReply>(
        Commands::GetClipsCommandReplyToThriftConverter(), ReplyOf(1'000));
    AddWrite("write reply of 1,000", reply);
    AddRead("read reply of 1,000", reply);
    AddBinary(rows, "reply of 1,000", reply);
}

} // namespace Talvo::Benchmarks
