// Compares the whole conversion between a domain object and bytes with that of protobuf: Encode() with filling and
// serializing a message, Decode() with parsing a message and copying its fields. "New" constructs the record or
// message, the memory for the bytes and the domain object each time; "reused" keeps them, and clears the message.

#include "benchmarks/Comparison.h"
#include "benchmarks/PeerMessages.h"
#include "benchmarks/Records.h"
#include "benchmarks/Samples.h"

#include "Thrift/Commands/FromGetClipsCommandReply.h"
#include "Thrift/Commands/ToGetClipsCommandReply.h"
#include "Thrift/Data/Channels/FromPlayerState.h"
#include "Thrift/Data/Channels/ToPlayerState.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Data/Sequences/FromPlaylist.h"
#include "Thrift/Data/Sequences/ToPlaylist.h"
#include "Thrift/Notifier/FromClipCreationFinishedEventArgs.h"
#include "Thrift/Notifier/ToClipCreationFinishedEventArgs.h"
#include "Thrift/Wire/BinaryWriter.h"
#include "Thrift/Wire/Codec.h"
#include "generated/ClipCreationEventArgs_types.h"
#include "generated/Clip_types.h"
#include "generated/GetClipsCommandReply_types.h"
#include "generated/PlayerState_types.h"
#include "generated/Playlist_types.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <span>
#include <string>
#include <type_traits>

namespace
{

using namespace Talvo::Benchmarks;
using namespace Talvo::Corvane::Zelmar::Serialization::Thrift;
using Talvo::Corvane::Zelmar::HighLevelOperations::Commands::GetClipsCommandReply;

template<typename TDomain>
bool AreEqual(TDomain const& left, TDomain const& right)
{
    return left == right;
}

/// Reads copies, because reading moves the cursor of a reply.
bool AreEqual(GetClipsCommandReply const& left, GetClipsCommandReply const& right)
{
    if (left.commandGuid != right.commandGuid || left.revision != right.revision ||
        left.RemainingCount() != right.RemainingCount())
        return false;
    auto const one = left;
    auto const other = right;
    while (one.MoveNext() && other.MoveNext())
    {
        if (one.CurrentClip() != other.CurrentClip()) return false;
    }
    return true;
}

void Require(bool const condition, std::string const& name, char const* const fault)
{
    if (condition) return;
    std::fprintf(stderr, "%s: %s\n", name.c_str(), fault);
    std::abort();
}

/// One object, and its bytes in both formats. They are written and read once first, to check that no measured operation
/// fails and that protobuf's messages carry the whole object.
template<typename TToWire, typename TToDomain, typename TMessage, typename TDomain>
class Subject
{
public:
    using ToWire = TToWire;
    using ToDomain = TToDomain;
    using Record = Wire::Detail::DestinationOf<TToWire>;
    using Message = TMessage;

    Subject(std::string const& name, TDomain const& value, TDomain (*const make)())
        : source_(value)
        , make_(make)
    {
        Require(Wire::Encode(TToWire(), Source(), writer_).Success(), name, "can't be encoded");
        auto decoded = make();
        Require(Wire::Decode(TToDomain(), Bytes(), decoded).Success(), name, "can't be decoded");

        TMessage sent;
        Fill(Source(), sent);
        Require(sent.SerializeToString(&peerBytes_), name, "can't be serialized by protobuf");
        TMessage received;
        Require(received.ParseFromString(peerBytes_), name, "can't be parsed by protobuf");
        auto read = make();
        Read(received, read);
        Require(AreEqual(read, value), name, "differs after it went through protobuf");
    }

    decltype(auto) Source() const { return ReadableAgain(source_); }
    TDomain NewDomain() const { return make_(); }
    std::span<std::uint8_t const> Bytes() const { return writer_.Bytes(); }
    std::string const& PeerBytes() const { return peerBytes_; }

private:
    TDomain source_;
    TDomain (*make_)();
    Wire::BinaryWriter writer_;
    std::string peerBytes_;
};

// The measured operations, each on a Subject.

template<typename TSubject>
void EncodeNew(benchmark::State& state, std::shared_ptr<TSubject const> const& subject)
{
    for (auto _ : state)
    {
        Wire::BinaryWriter writer;
        auto const result = Wire::Encode(typename TSubject::ToWire(), subject->Source(), writer);
        benchmark::DoNotOptimize(result);
        benchmark::DoNotOptimize(writer.Bytes());
    }
}

template<typename TSubject>
void EncodeReused(benchmark::State& state, std::shared_ptr<TSubject const> const& subject)
{
    typename TSubject::Record record;
    Wire::BinaryWriter writer;
    for (auto _ : state)
    {
        writer.Truncate();
        auto const result = Wire::Encode(typename TSubject::ToWire(), subject->Source(), record, writer);
        benchmark::DoNotOptimize(result);
        benchmark::ClobberMemory();
    }
}

template<typename TSubject>
void DecodeNew(benchmark::State& state, std::shared_ptr<TSubject const> const& subject)
{
    for (auto _ : state)
    {
        auto domain = subject->NewDomain();
        auto const result = Wire::Decode(typename TSubject::ToDomain(), subject->Bytes(), domain);
        benchmark::DoNotOptimize(result);
        benchmark::DoNotOptimize(domain);
    }
}

template<typename TSubject>
void DecodeReused(benchmark::State& state, std::shared_ptr<TSubject const> const& subject)
{
    typename TSubject::Record record;
    auto domain = subject->NewDomain();
    for (auto _ : state)
    {
        auto const result = Wire::Decode(typename TSubject::ToDomain(), subject->Bytes(), record, domain);
        benchmark::DoNotOptimize(result);
        benchmark::DoNotOptimize(domain);
    }
}

template<typename TSubject>
void SerializeNew(benchmark::State& state, std::shared_ptr<TSubject const> const& subject)
{
    for (auto _ : state)
    {
        typename TSubject::Message message;
        Fill(subject->Source(), message);
        std::string bytes;
        benchmark::DoNotOptimize(message.SerializeToString(&bytes));
        benchmark::DoNotOptimize(bytes);
    }
}

template<typename TSubject>
void SerializeReused(benchmark::State& state, std::shared_ptr<TSubject const> const& subject)
{
    typename TSubject::Message message;
    std::string bytes;
    for (auto _ : state)
    {
        message.Clear();
        Fill(subject->Source(), message);
        benchmark::DoNotOptimize(message.SerializeToString(&bytes));
        benchmark::DoNotOptimize(bytes);
    }
}

template<typename TSubject>
void ParseNew(benchmark::State& state, std::shared_ptr<TSubject const> const& subject)
{
    for (auto _ : state)
    {
        auto domain = subject->NewDomain();
        typename TSubject::Message message;
        benchmark::DoNotOptimize(message.ParseFromString(subject->PeerBytes()));
        Read(message, domain);
        benchmark::DoNotOptimize(domain);
    }
}

template<typename TSubject>
void ParseReused(benchmark::State& state, std::shared_ptr<TSubject const> const& subject)
{
    typename TSubject::Message message;
    auto domain = subject->NewDomain();
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(message.ParseFromString(subject->PeerBytes())); // clears the message first
        Read(message, domain);
        benchmark::DoNotOptimize(domain);
    }
}

/// Registers the benchmarks of one object and adds its rows. `make` makes new domain objects.
template<typename TToWire, typename TToDomain, typename TMessage, typename TDomain>
void AddSubject(
    Comparisons& rows, std::string const& name, TDomain const& value,
    std::type_identity_t<TDomain> (*make)() = [] { return TDomain(); })
{
    using Measured = Subject<TToWire, TToDomain, TMessage, TDomain>;
    auto const subject = std::make_shared<Measured const>(name, value, make);
    std::printf("%s: %zu bytes, of protobuf %zu\n", name.c_str(), subject->Bytes().size(), subject->PeerBytes().size());

    auto const add =
        [&rows, &name, &subject](char const* const what, auto const& ours, auto const& theirs, double const target)
    {
        auto const measured = name + what;
        auto const against = "protobuf, " + measured;
        benchmark::RegisterBenchmark(measured.c_str(), ours, subject);
        benchmark::RegisterBenchmark(against.c_str(), theirs, subject);
        rows.push_back({measured, against, target});
    };
    add(" out, new", &EncodeNew<Measured>, &SerializeNew<Measured>, 0.40);
    add(" out, reused", &EncodeReused<Measured>, &SerializeReused<Measured>, 0.60);
    add(" in, new", &DecodeNew<Measured>, &ParseNew<Measured>, 0.65);
    add(" in, reused", &DecodeReused<Measured>, &ParseReused<Measured>, 1.00);
}

Comparisons Add()
{
    KeepHeap();
    Comparisons rows;
    AddSubject<Data::Clips::ClipToThriftConverter, Data::Clips::ThriftToClipConverter, Peer::Clip>(
        rows, "clip", ClipWithTwoEssences());
    AddSubject<Data::Channels::PlayerStateToThriftConverter, Data::Channels::ThriftToPlayerStateConverter,
               Peer::PlayerState>(rows, "player state", Talvo::Tests::FullPlayerState());
    AddSubject<Data::Sequences::PlaylistToThriftConverter, Data::Sequences::ThriftToPlaylistConverter, Peer::Playlist>(
        rows, "playlist of 500", PlaylistOf(500));
    AddSubject<Notifier::ClipCreationFinishedEventArgsToThriftConverter,
               Notifier::ThriftToClipCreationFinishedEventArgsConverter, Peer::ClipCreationFinished>(
        rows, "clip creation event", CreationOf(Talvo::Tests::NestedClip(), Talvo::Tests::NestedClip()),
        &FreshCreation);
    AddSubject<Commands::GetClipsCommandReplyToThriftConverter, Commands::ThriftToGetClipsCommandReplyConverter,
               Peer::GetClipsReply>(rows, "reply of 1,000", ReplyOf(1'000), &FreshReply);
    return rows;
}

} // namespace

int main(int argc, char** argv)
{
    return Run(argc, argv, &Add);
}
