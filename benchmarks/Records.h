#pragma once

#include "benchmarks/Comparison.h"

#include "Thrift/TryTo.h"

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

/// The targets of a record: the highest ratios of a conversion to Thrift's own work on the same record, and to plain
/// copies.
struct RecordTargets
{
    std::optional<double> toNewRecord = {};       ///< of `write`
    std::optional<double> toNewRecordOfCopy = {}; ///< of a copy of the wire record
    std::optional<double> toUsedRecord = {};      ///< of `write`
    std::optional<double> toDomain = {};          ///< of `read`
    std::optional<double> toDomainOfCopy = {};    ///< of a copy of the domain object
};

/// A buffer that can be read repeatedly, without a cost that would be measured as Thrift's.
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

/// The source of a conversion. A reply that can be read only once is copied for each conversion; copies share the
/// contents.
template<typename TDomain>
decltype(auto) ReadableAgain(TDomain const& source)
{
    if constexpr (requires { source.MoveNext(); })
        return TDomain(source);
    else
        return (source);
}

// Each function registers one measurement. A conversion starts from a new destination and includes its destruction; so
// do the copies and `read` that it is compared with. `write` writes into a buffer that is large enough.

template<typename TToWire, typename TWire, typename TDomain>
void AddToWire(std::string const& name, std::shared_ptr<TDomain const> const& source)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [source](benchmark::State& state)
                                 {
                                     TToWire const converter;
                                     for (auto _ : state)
                                     {
                                         TWire wire;
                                         std::ignore = converter.To(ReadableAgain(*source), wire);
                                         benchmark::DoNotOptimize(wire);
                                     }
                                 });
}

/// Converts with `To`, or checked with TryTo(). `make` makes the new destination.
template<typename TToDomain, bool isChecked = false, typename TWire>
void AddToDomain(std::string const& name, std::shared_ptr<TWire const> const& sent, auto const& make)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [sent, make](benchmark::State& state)
                                 {
                                     TToDomain const converter;
                                     for (auto _ : state)
                                     {
                                         auto domain = make();
                                         if constexpr (isChecked)
                                             std::ignore = Corvane::Zelmar::Serialization::Thrift::TryTo(converter,
                                                                                                         *sent, domain);
                                         else
                                             std::ignore = converter.To(*sent, domain);
                                         benchmark::DoNotOptimize(domain);
                                     }
                                 });
}

/// A copy is the cheapest way to make such an object. It copies the result of a conversion, so that its memory layout
/// is that of the measured conversion.
template<typename T>
void AddCopy(std::string const& name, std::shared_ptr<T const> const& original)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [original](benchmark::State& state)
                                 {
                                     for (auto _ : state)
                                     {
                                         T copy(*original);
                                         benchmark::DoNotOptimize(copy);
                                     }
                                 });
}

template<typename TWire>
void AddWrite(std::string const& name, std::shared_ptr<TWire const> const& sent)
{
    benchmark::RegisterBenchmark(name.c_str(),
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
}

template<typename TWire>
void AddRead(std::string const& name, std::shared_ptr<TWire const> const& sent)
{
    benchmark::RegisterBenchmark(name.c_str(),
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
}

/// Registers the benchmarks of one record and adds its rows: both directions, compared with `write` and `read` and with
/// copies. `make` makes new domain objects; `clear` empties the fields of a used record to which the conversion
/// appends.
template<typename TToWire, typename TToDomain, typename TWire, typename TDomain>
void AddRecord(
    Comparisons& rows, std::string const& name, TDomain const& value, RecordTargets const& targets,
    void (*clear)(TWire&), std::type_identity_t<TDomain> (*make)() = [] { return TDomain(); })
{
    auto const source = std::make_shared<TDomain const>(value);
    auto const wire = std::make_shared<TWire>();
    std::ignore = TToWire().To(value, *wire);
    auto const domain = std::make_shared<TDomain>(make());
    std::ignore = TToDomain().To(*wire, *domain);
    std::shared_ptr<TWire const> const sent = wire;
    std::shared_ptr<TDomain const> const received = domain;

    auto const toNewRecord = name + " to wire, new record";
    auto const toUsedRecord = name + " to wire, used record";
    auto const toDomain = "wire to " + name;
    auto const toDomainChecked = toDomain + ", checked";
    auto const copy = "copy of wire " + name;
    auto const domainCopy = "copy of " + name;
    auto const write = "write " + name;
    auto const read = "read " + name;

    AddToWire<TToWire, TWire>(toNewRecord, source);
    benchmark::RegisterBenchmark(toUsedRecord.c_str(),
                                 [source, clear](benchmark::State& state)
                                 {
                                     TToWire const converter;
                                     TWire used;
                                     for (auto _ : state)
                                     {
                                         clear(used);
                                         std::ignore = converter.To(*source, used);
                                         benchmark::DoNotOptimize(used);
                                     }
                                 });
    AddToDomain<TToDomain>(toDomain, sent, make);
    AddToDomain<TToDomain, true>(toDomainChecked, sent, make);
    AddCopy(copy, sent);
    AddCopy(domainCopy, received);
    AddWrite(write, sent);
    AddRead(read, sent);

    rows.insert(rows.end(), {{toNewRecord, write, targets.toNewRecord},
                             {toNewRecord, copy, targets.toNewRecordOfCopy},
                             {toUsedRecord, write, targets.toUsedRecord},
                             {toUsedRecord, copy, {}},
                             {toDomainChecked, read, targets.toDomain},
                             {toDomainChecked, toDomain, 1.05},
                             {toDomain, domainCopy, targets.toDomainOfCopy}});
}

/// Registers `work(count)` for one list of `many` elements and for the same number in lists of `few`, and adds the row
/// that shows whether a long list takes more time per element than a short one. The results of `work` are destroyed
/// outside the measured time.
template<typename TMakeWork>
void AddLinear(Comparisons& rows, std::string const& name, std::size_t few, std::size_t many, TMakeWork const& makeWork)
{
    auto const longList = name + ", " + std::to_string(many) + " at once";
    auto const shortLists = name + ", " + std::to_string(few) + " at once";
    auto const add = [](std::string const& label, auto const& work, std::size_t const rounds)
    {
        benchmark::RegisterBenchmark(label.c_str(),
                                     [work, rounds](benchmark::State& state)
                                     {
                                         for (auto _ : state)
                                         {
                                             for (std::size_t round = 0; round < rounds; ++round)
                                             {
                                                 std::optional result(work());
                                                 state.PauseTiming();
                                                 result.reset();
                                                 state.ResumeTiming();
                                             }
                                         }
                                     });
    };
    add(longList, makeWork(many), 1);
    add(shortLists, makeWork(few), many / few);
    rows.push_back({longList, shortLists, 1.3});
}

} // namespace Talvo::Benchmarks
