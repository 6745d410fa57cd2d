#pragma once

#include "Common/Serialization/ConversionResult.h"
#include "Thrift/TryTo.h"

#include <thrift/protocol/TProtocol.h>

#include <concepts>
#include <memory>
#include <optional>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace Talvo::Tools
{

/// One wire record whose type is known by its name only.
class WireRecord
{
public:
    virtual ~WireRecord() = default;

    virtual void Read(apache::thrift::protocol::TProtocol& protocol) = 0;
    virtual void Write(apache::thrift::protocol::TProtocol& protocol) const = 0;
};

/// What the two conversions of a round trip said; the second one runs only after a success of the first.
struct RoundTrip
{
    Common::Serialization::ConversionResult toDomain;
    std::optional<Common::Serialization::ConversionResult> toWire;
    std::unique_ptr<WireRecord> record; ///< What came back: null unless both succeeded.
};

/// A record type as the tool knows it.
struct RecordType
{
    std::string_view name;
    std::string_view group; ///< Short name of its namespace.
    bool toDomain;          ///< There is a converter to the domain.
    bool toWire;            ///< There is a converter from the domain.
    std::unique_ptr<WireRecord> (*make)();
    /// Converts a record into a newly built domain object, with `To` and with TryTo(); null without a converter to the
    /// domain.
    Common::Serialization::ConversionResult (*toDomainUnchecked)(WireRecord const&);
    Common::Serialization::ConversionResult (*toDomainChecked)(WireRecord const&);
    RoundTrip (*throughDomain)(WireRecord const&); ///< Null unless there are both converters.
    /// Whether both records become equal domain objects; null without a converter to the domain or without equality there.
    bool (*sameDomain)(WireRecord const&, WireRecord const&);
};

template<typename TWire>
class WireRecordOf : public WireRecord
{
public:
    // Through the virtual protocol: one copy of the generated code serves every protocol.
    void Read(apache::thrift::protocol::TProtocol& protocol) override { record.read(&protocol); }
    void Write(apache::thrift::protocol::TProtocol& protocol) const override { record.write(&protocol); }

    TWire record;
};

/// A newly built domain object, where that takes no arguments.
template<typename TWire, typename TDomain>
TDomain NewDomain(TWire const&)
{
    return TDomain();
}

/// Converts a record into a newly built domain object, checked or not.
template<typename TWire, typename TToDomain, typename TDomain, TDomain (*newDomain)(TWire const&), bool isChecked>
Common::Serialization::ConversionResult ToDomain(WireRecord const& source)
{
    auto const& wire = static_cast<WireRecordOf<TWire> const&>(source).record;
    TDomain domain = newDomain(wire);
    if constexpr (isChecked)
        return Corvane::Zelmar::Serialization::Thrift::TryTo(TToDomain(), wire, domain);
    else
        return TToDomain().To(wire, domain);
}

/// Converts a record into a newly built domain object, and that into a newly built wire record.
template<typename TWire, typename TToWire, typename TToDomain, typename TDomain, TDomain (*newDomain)(TWire const&)>
RoundTrip ThroughDomain(WireRecord const& source)
{
    auto const& wire = static_cast<WireRecordOf<TWire> const&>(source).record;
    TDomain domain = newDomain(wire);
    RoundTrip trip{Corvane::Zelmar::Serialization::Thrift::TryTo(TToDomain(), wire, domain), std::nullopt, nullptr};
    if (!trip.toDomain.success) return trip;

    auto back = std::make_unique<WireRecordOf<TWire>>();
    trip.toWire = TToWire().To(std::move(domain), back->record);
    if (trip.toWire->success) trip.record = std::move(back);
    return trip;
}

/// Whether both records convert, each into a newly built domain object, and these are equal.
template<typename TWire, typename TToDomain, typename TDomain, TDomain (*newDomain)(TWire const&)>
bool SameDomain(WireRecord const& left, WireRecord const& right)
{
    using Corvane::Zelmar::Serialization::Thrift::TryTo;
    auto const& leftWire = static_cast<WireRecordOf<TWire> const&>(left).record;
    auto const& rightWire = static_cast<WireRecordOf<TWire> const&>(right).record;
    TDomain leftDomain = newDomain(leftWire);
    TDomain rightDomain = newDomain(rightWire);
    return TryTo(TToDomain(), leftWire, leftDomain).success && TryTo(TToDomain(), rightWire, rightDomain).success &&
           leftDomain == rightDomain;
}

/// The registry's line for one record: `Record<Wire>("Wire")` for a record without converters,
/// `Record<Wire, WireToThriftConverter, ThriftToWireConverter, Domain>("Wire")` for one with both; where one direction
/// is missing, void stands for it. A domain class without default constructor adds the function that builds a new one.
template<typename TWire, typename TToWire = void, typename TToDomain = void, typename TDomain = void,
         TDomain (*newDomain)(TWire const&) = &NewDomain<TWire, TDomain>>
struct Record
{
    constexpr explicit Record(std::string_view const shown)
        : name(shown)
    {
    }

    std::string_view name;
};

/// A line of the registry as the tool knows it.
template<typename TWire, typename TToWire, typename TToDomain, typename TDomain, TDomain (*newDomain)(TWire const&)>
RecordType TypeOf(Record<TWire, TToWire, TToDomain, TDomain, newDomain> const& record, std::string_view const group)
{
    constexpr bool HasToWire = !std::is_void_v<TToWire>;
    constexpr bool HasToDomain = !std::is_void_v<TToDomain>;

    RecordType type{record.name, group, HasToDomain, HasToWire, nullptr, nullptr, nullptr, nullptr, nullptr};
    type.make = []() -> std::unique_ptr<WireRecord> { return std::make_unique<WireRecordOf<TWire>>(); };
    if constexpr (HasToDomain)
    {
        type.toDomainUnchecked = &ToDomain<TWire, TToDomain, TDomain, newDomain, false>;
        type.toDomainChecked = &ToDomain<TWire, TToDomain, TDomain, newDomain, true>;
    }
    if constexpr (HasToWire && HasToDomain)
        type.throughDomain = &ThroughDomain<TWire, TToWire, TToDomain, TDomain, newDomain>;
    if constexpr (HasToDomain && std::equality_comparable<TDomain>)
        type.sameDomain = &SameDomain<TWire, TToDomain, TDomain, newDomain>;
    return type;
}

} // namespace Talvo::Tools
