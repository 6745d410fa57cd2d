#include "records/RecordType.h"

#include "Thrift/TryTo.h"
#include "Thrift/Wire/BinaryReader.h"
#include "records/All.h"
#include "records/NewDomain.h"
#include "records/ShapeOf.h"
#include "records/ValueWalk.h"

#include <concepts>
#include <stdexcept>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace Talvo::Records
{

namespace
{

using Common::Serialization::ConversionResult;
using Corvane::Zelmar::Serialization::Thrift::TryTo;

template<typename TWire>
class HeldRecord final : public WireRecord
{
    // Without these moves each growth of a list would copy its records.
    static_assert(std::is_nothrow_move_constructible_v<TWire> && std::is_nothrow_move_assignable_v<TWire>);
    static_assert(std::has_virtual_destructor_v<TWire>);

public:
    // Through the virtual protocol: one copy of the generated code serves every protocol.
    void Read(apache::thrift::protocol::TProtocol& protocol) override { record.read(&protocol); }
    void Read(Corvane::Zelmar::Serialization::Thrift::Wire::BinaryReader& reader) override { record.read(&reader); }
    void Write(apache::thrift::protocol::TProtocol& protocol) const override { record.write(&protocol); }

    bool operator==(WireRecord const& other) const override
    {
        auto const* const same = dynamic_cast<HeldRecord const*>(&other);
        return same != nullptr && record == same->record;
    }

    TWire record;

private:
    std::type_info const& HeldType() const override { return typeid(TWire); }
    Shape const& HeldShape() const override { return ShapeOf<TWire>(); }
    void const* Held() const override { return &record; }
};

template<typename TDomain>
class HeldDomain final : public DomainObject
{
public:
    explicit HeldDomain(TDomain&& held)
        : value(std::move(held))
    {
    }

    TDomain value;
};

template<typename TWire>
TWire const& WireOf(WireRecord const& record)
{
    return static_cast<HeldRecord<TWire> const&>(record).record;
}

template<typename TDomain>
TDomain const& DomainOf(DomainObject const& object)
{
    return static_cast<HeldDomain<TDomain> const&>(object).value;
}

template<typename TConverter, typename TSource, typename TDestination>
ConversionResult Convert(TSource const& source, TDestination& destination, Form const form)
{
    TConverter const converter;
    auto result = form == Form::Constant  ? converter.To(source, destination)
                  : form == Form::Checked ? TryTo(converter, source, destination)
                                          : converter.To(std::move(const_cast<TSource&>(source)), destination);
    if (*converter.GetLastConversionError() != '\0')
        throw std::logic_error("GetLastConversionError() gives more than the empty text");
    return result;
}

template<typename TPair>
ConversionResult ToDomain(WireRecord const& source, DomainObject& destination, Form const form)
{
    using Domain = typename TPair::Domain;
    return Convert<typename TPair::ToDomain>(WireOf<typename TPair::Wire>(source),
                                             static_cast<HeldDomain<Domain>&>(destination).value, form);
}

template<typename TPair>
ConversionResult ToWire(DomainObject const& source, WireRecord& destination, Form const form)
{
    using Wire = typename TPair::Wire;
    return Convert<typename TPair::ToWire>(DomainOf<typename TPair::Domain>(source),
                                           static_cast<HeldRecord<Wire>&>(destination).record, form);
}

template<typename TPair>
RecordType TypeOf(TPair, std::string_view const name, std::string_view const group)
{
    using Wire = typename TPair::Wire;
    using Domain = typename TPair::Domain;
    constexpr bool HasToWire = !std::is_void_v<typename TPair::ToWire>;
    constexpr bool HasToDomain = !std::is_void_v<typename TPair::ToDomain>;

    RecordType type{name,
                    group,
                    Wire::ascii_fingerprint,
                    Wire::binary_fingerprint,
                    HasToDomain,
                    HasToWire,
                    nullptr,
                    nullptr,
                    nullptr,
                    nullptr,
                    nullptr,
                    &ShapeOf<Wire>};
    type.make = []() -> std::unique_ptr<WireRecord> { return std::make_unique<HeldRecord<Wire>>(); };
    if constexpr (HasToWire || HasToDomain)
    {
        type.makeDomain = [](WireRecord const& record) -> std::unique_ptr<DomainObject>
        { return std::make_unique<HeldDomain<Domain>>(NewDomain<Domain>(WireOf<Wire>(record))); };
        if constexpr (std::equality_comparable<Domain>)
            type.equal = [](DomainObject const& left, DomainObject const& right)
            { return DomainOf<Domain>(left) == DomainOf<Domain>(right); };
    }
    if constexpr (HasToDomain) type.convertToDomain = &ToDomain<TPair>;
    if constexpr (HasToWire) type.convertToWire = &ToWire<TPair>;
    return type;
}

} // namespace

std::vector<RecordType> const& RecordTypes()
{
    static auto const types = []
    {
        std::vector<RecordType> all;
        ForEachRecord([&all](auto const pair, auto const name, auto const group)
                      { all.push_back(TypeOf(pair, name, group)); });
        return all;
    }();
    return types;
}

void WireRecord::VisitValues(ValueVisit const& visit) const
{
    ValueWalk(FieldSet::Read, visit).PassRecord(HeldShape(), Held(), nullptr);
}

void WireRecord::VisitValues(WireRecord const& after, FieldSet const fieldsAfter, ValueVisit const& visit) const
{
    ValueWalk(fieldsAfter, visit).PassRecord(HeldShape(), Held(), after.Held());
}

RoundTrip ThroughDomain(RecordType const& type, WireRecord const& record)
{
    auto const domain = type.makeDomain(record);
    RoundTrip trip{type.convertToDomain(record, *domain, Form::Checked), std::nullopt, nullptr};
    if (!trip.toDomain.success) return trip;

    auto back = type.make();
    trip.toWire = type.convertToWire(*domain, *back, Form::Movable);
    if (trip.toWire->success) trip.record = std::move(back);
    return trip;
}

bool SameDomain(RecordType const& type, WireRecord const& left, WireRecord const& right)
{
    auto const leftDomain = type.makeDomain(left);
    auto const rightDomain = type.makeDomain(right);
    return type.convertToDomain(left, *leftDomain, Form::Checked).success &&
           type.convertToDomain(right, *rightDomain, Form::Checked).success && type.equal(*leftDomain, *rightDomain);
}

} // namespace Talvo::Records
