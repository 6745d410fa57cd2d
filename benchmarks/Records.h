#pragma once

#include "benchmarks/Comparison.h"

#include <benchmark/benchmark.h>
#include <thrift/protocol/TBinaryProtocol.h>
#include <thrift/transport/TBufferTransports.h>

#include <memory>
#include <optional>
#include <string>
#include <tuple>

namespace Talvo::Benchmarks
{

/// What a conversion may cost of Thrift's own work on the same record.
struct RecordTargets
{
    std::optional<double> toNewRecord = 0.50;  ///< of `write`
    std::optional<double> toUsedRecord = 0.30; ///< of `write`
    std::optional<double> toDomain = 0.20;     ///< of `read`
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
/// record start from a new destination and include its destruction. `clear` empties the fields of a used record that
/// the conversion appends to.
template<typename TToWire, typename TToDomain, typename TWire, typename TDomain>
void AddRecord(
    Comparisons& rows, std::string const& name, TDomain const& value, RecordTargets const& targets = {},
    void (*clear)(TWire&) = [](TWire&) {})
{
    TWire sent;
    std::ignore = TToWire().To(value, sent);

    auto const toNewRecord = name + " to wire, new record";
    benchmark::RegisterBenchmark(toNewRecord.c_str(),
                                 [value](benchmark::State& state)
                                 {
                                     TToWire const converter;
                                     for (auto _ : state)
                                     {
                                         TWire wire;
                                         std::ignore = converter.To(value, wire);
                                         benchmark::DoNotOptimize(wire);
                                     }
                                 });

    auto const toUsedRecord = name + " to wire, used record";
    benchmark::RegisterBenchmark(toUsedRecord.c_str(),
                                 [value, clear](benchmark::State& state)
                                 {
                                     TToWire const converter;
                                     TWire wire;
                                     for (auto _ : state)
                                     {
                                         clear(wire);
                                         std::ignore = converter.To(value, wire);
                                         benchmark::DoNotOptimize(wire);
                                     }
                                 });

    auto const toDomain = "wire to " + name;
    benchmark::RegisterBenchmark(toDomain.c_str(),
                                 [sent](benchmark::State& state)
                                 {
                                     TToDomain const converter;
                                     for (auto _ : state)
                                     {
                                         TDomain domain;
                                         std::ignore = converter.To(sent, domain);
                                         benchmark::DoNotOptimize(domain);
                                     }
                                 });

    auto const copy = "copy of wire " + name;
    benchmark::RegisterBenchmark(copy.c_str(),
                                 [sent](benchmark::State& state)
                                 {
                                     for (auto _ : state)
                                     {
                                         TWire wire(sent);
                                         benchmark::DoNotOptimize(wire);
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
                                         sent.write(&protocol);
                                         benchmark::ClobberMemory();
                                     }
                                 });

    auto const read = "read " + name;
    benchmark::RegisterBenchmark(read.c_str(),
                                 [sent](benchmark::State& state)
                                 {
                                     auto const buffer = std::make_shared<WireBuffer>();
                                     WireProtocol protocol(buffer);
                                     sent.write(&protocol);
                                     for (auto _ : state)
                                     {
                                         buffer->Rewind();
                                         TWire wire;
                                         wire.read(&protocol);
                                         benchmark::DoNotOptimize(wire);
                                     }
                                 });

    rows.insert(rows.end(), {{toNewRecord, write, targets.toNewRecord},
                             {toNewRecord, copy, {}},
                             {toUsedRecord, write, targets.toUsedRecord},
                             {toUsedRecord, copy, {}},
                             {toDomain, read, targets.toDomain},
                             {toDomain, copy, {}}});
}

} // namespace Talvo::Benchmarks
