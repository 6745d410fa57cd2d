#include "benchmarks/Comparison.h"
#include "benchmarks/Records.h"

#include "Domain/HighLevelOperations/Commands/CommandParams.h"
#include "Thrift/TryTo.h"
#include "records/All.h"
#include "records/NewDomain.h"
#include "records/RecordFiller.h"

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace Talvo::Benchmarks
{

namespace
{

/// A wire record and its domain object.
template<typename TWire, typename TDomain>
struct Sample
{
    std::shared_ptr<TDomain const> domain;
    std::shared_ptr<TWire const> wire; ///< the conversion of the domain object
    std::uint32_t size = 0;            ///< the size of the wire record in bytes
};

/// The full sample of a record: it tries a few numbers for all fields and takes those with which the most is converted.
/// What a record carries depends on its numbers: clips belong to results that succeeded, rates to their video standard.
template<typename TPair, typename TWire = typename TPair::Wire, typename TDomain = typename TPair::Domain>
Sample<TWire, TDomain> FullSample(std::string const& name)
{
    Sample<TWire, TDomain> fullest;
    for (auto const& numbers : {std::vector<std::int16_t>{1}, {2}, {1, 2, 3}})
    {
        auto filler = Records::RecordFiller::Convertible(numbers);
        TWire filled;
        filled.read(&filler);

        auto const domain = std::make_shared<TDomain>(Records::NewDomain<TDomain>(filled));
        auto const wire = std::make_shared<TWire>();
        if (!Corvane::Zelmar::Serialization::Thrift::TryTo(typename TPair::ToDomain(), filled, *domain).success ||
            !typename TPair::ToWire().To(ReadableAgain(*domain), *wire).success)
            continue;

        WireProtocol protocol(std::make_shared<WireBuffer>());
        auto const size = wire->write(&protocol);
        if (size > fullest.size) fullest = {domain, wire, size};
    }
    if (fullest.size == 0) throw std::logic_error("no sample of " + name + " converts");
    return fullest;
}

/// Returns a function that makes new destinations. New command parameters generate an identifier, which takes longer
/// than most conversions, so a copy of new parameters is used here and that time is measured separately.
template<typename TDomain, typename TWire>
auto NewDestination(std::shared_ptr<TWire const> const& wire)
{
    if constexpr (std::is_base_of_v<Corvane::Zelmar::HighLevelOperations::Commands::CommandParams, TDomain>)
        return [fresh = Records::NewDomain<TDomain>(*wire)] { return fresh; };
    else
        return [wire] { return Records::NewDomain<TDomain>(*wire); };
}

template<typename TPair>
void Add(TPair, std::string const& name)
{
    using ToWire = typename TPair::ToWire;
    using ToDomain = typename TPair::ToDomain;
    if constexpr (!std::is_void_v<ToWire> && !std::is_void_v<ToDomain>)
    {
        auto const sample = FullSample<TPair>(name);
        AddToWire<ToWire, typename TPair::Wire>("every/" + name + "/toWire", sample.domain);
        AddCopy("every/" + name + "/copy", sample.wire);
        AddWrite("every/" + name + "/write", sample.wire);
        AddToDomain<ToDomain>("every/" + name + "/fromWire", sample.wire,
                              NewDestination<typename TPair::Domain>(sample.wire));
        AddRead("every/" + name + "/read", sample.wire);
    }
}

} // namespace

void AddEveryRecord()
{
    Records::ForEachRecord([](auto const pair, auto const name, auto) { Add(pair, std::string(name)); });
}

} // namespace Talvo::Benchmarks
