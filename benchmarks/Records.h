#pragma once

#include "benchmarks/Comparison.h"

#include <benchmark/benchmark.h>
#include <thrift/protocol/TBinaryProtocol.h>
#include <thrift/transport/TBufferTransports.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>

namespace Talvo::Benchmarks
{

/// What a conversion may cost of Thrift's own work on the same record, and of plain copies.
struct RecordTargets
{
    std::optional<double> toNewRecord = {};       ///< of `write`
    std::optional<double> toNewRecordOfCopy = {}; ///< of a copy of the wire record
    std::optional<double> toUsedRecord = {};      ///< of `write`
    std::optional<double> toDomain = {};          ///< of `read`
    std::optional<double> toDomainOfCopy = {};    ///< of a copy of the domain object
};

/// A buffer that can be read again and again, at no cost that would count as Thrift's.
class WireBuffer : public apache::thrift::transport::TMemoryBuffer
{
public:
    void Rewind()
    {
        rBase_ = buffer_;
        resetConsumedMessageSize();
    }
};

using WireProtocol = apache::thrift::protocol::TBinaryProtocolT<apache::thrift::transport::TMemoryBuffer>;

/// Registers what is measured of one record and adds its rows: both directions against `write` and `read` (binary
/// protocol, which writes into a buffer that is large enough) and against a copy of the wire record. All but the used
/// record start from a new destination, which `make` makes, and include its destruction. `clear` empties the fields of a
/// used record that the conversion appends to.
template<typename TToWire, typename TToDomain, typename TWire, typename TDomain>
void AddRecord(
    Comparisons& rows, std::string const& name, TDomain const& value, RecordTargets const& targets,
    void (*clear)(TWire&), std::type_identity_t<TDomain> (*make)() = [] { return TDomain(); })
{
    auto const source = std::make_shared<TDomain const>(value);
    auto const sent = std::make_shared<TWire>();
    std::ignore = TToWire().To(value, *sent);

    auto const toNewRecord = name + " to wire, new record";
    benchmark::RegisterBenchmark(toNewRecord.c_str(),
                                 [source](benchmark::State& state)
                                 {
                                     TToWire const converter;
                                     for (auto _ : state)
                                     {
                                         TWire wire;
                                         std::ignore = converter.To(*source, wire);
                                         benchmark::DoNotOptimize(wire);
                                     }
                                 });

    auto const toUsedRecord = name + " to wire, used record";
    benchmark::RegisterBenchmark(toUsedRecord.c_str(),
                                 [source, clear](benchmark::State& state)
                                 {
                                     TToWire const converter;
                                     TWire wire;
                                     for (auto _ : state)
                                     {
                                         clear(wire);
                                         std::ignore = converter.To(*source, wire);
                                         benchmark::DoNotOptimize(wire);
                                     }
                                 });

    auto const toDomain = "wire to " + name;
    benchmark::RegisterBenchmark(toDomain.c_str(),
                                 [sent, make](benchmark::State& state)
                                 {
                                     TToDomain const converter;
                                     for (auto _ : state)
                                     {
                                         auto domain = make();
                                         std::ignore = converter.To(*sent, domain);
                                         benchmark::DoNotOptimize(domain);
                                     }
                                 });

    auto const copy = "copy of wire " + name;
    benchmark::RegisterBenchmark(copy.c_str(),
                                 [sent](benchmark::State& state)
                                 {
                                     for (auto _ : state)
                                     {
                                         TWire wire(*sent);
                                         benchmark::DoNotOptimize(wire);
                                     }
                                 });

    // What is copied is what a conversion gave, so its memory lies as that of the conversion that is measured.
    auto const received = std::make_shared<TDomain>(make());
    std::ignore = TToDomain().To(*sent, *received);
    auto const domainCopy = "copy of " + name;
    benchmark::RegisterBenchmark(domainCopy.c_str(),
                                 [received](benchmark::State& state)
                                 {
                                     for (auto _ : state)
                                     {
                                         TDomain domain(*received);
                                         benchmark::DoNotOptimize(domain);
                                     }
                                 });

    auto const write = "write " + name;
    benchmark::RegisterBenchmark(write.c_str(),
                                 [sent](benchmark::State& state)
                                 {
                                     auto const buffer = std::make_shared<WireBuffer>();
                                     WireProtocol protocol(buffer);
                                     for (auto _ : state)
                                     {
                                         buffer->resetBuffer();
                                         sent->write(&protocol);
                                         benchmark::ClobberMemory();
                                     }
                                 });

    auto const read = "read " + name;
    benchmark::RegisterBenchmark(read.c_str(),
                                 [sent](benchmark::State& state)
                                 {
                                     auto const buffer = std::make_shared<WireBuffer>();
                                     WireProtocol protocol(buffer);
                                     sent->write(&protocol);
                                     for (auto _ : state)
                                     {
                                         buffer->Rewind();
                                         TWire wire;
                                         wire.read(&protocol);
                                         benchmark::DoNotOptimize(wire);
                                     }
                                 });

    rows.insert(rows.end(), {{toNewRecord, write, targets.toNewRecord},
                             {toNewRecord, copy, targets.toNewRecordOfCopy},
                             {toUsedRecord, write, targets.toUsedRecord},
                             {toUsedRecord, copy, {}},
                             {toDomain, read, targets.toDomain},
                             {toDomain, domainCopy, targets.toDomainOfCopy}});
}

/// Registers `work(count)` for a list of `many` elements and for as many in lists of `few`, and adds the row that shows
/// whether a long list costs more an element than a short one.
template<typename TMakeWork>
void AddLinear(Comparisons& rows, std::string const& name, std::size_t few, std::size_t many, TMakeWork const& makeWork)
{
    auto const longList = name + ", " + std::to_string(many) + " at once";
    auto const shortLists = name + ", " + std::to_string(few) + " at once";
    benchmark::RegisterBenchmark(longList.c_str(),
                                 [work = makeWork(many)](benchmark::State& state)
                                 {
                                     for (auto _ : state) work();
                                 });
    benchmark::RegisterBenchmark(shortLists.c_str(),
                                 [work = makeWork(few), rounds = many / few](benchmark::State& state)
                                 {
                                     for (auto _ : state)
                                         for (std::size_t round = 0; round < rounds; ++round) work();
                                 });
    rows.push_back({longList, shortLists, 1.3});
}

} // namespace Talvo::Benchmarks
