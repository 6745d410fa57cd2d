#pragma once

#include "Common/Serialization/Converter.h"
#include "tests/Thrift/WireBytes.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <type_traits>
#include <utility>

namespace Talvo::Tests
{

/// The names and values of a record's fields, which tell what a round trip can't: two fields changed places both ways.
template<typename TWire>
std::string Printed(TWire const& wire)
{
    std::ostringstream out;
    out << wire;
    return out.str();
}

/// Converts, and gives the text of the failure: nothing for a success.
template<typename TConverter>
std::string Told(auto const& source, auto& destination)
{
    auto const result = TConverter().To(source, destination);
    EXPECT_EQ(result.success, result.message.empty());
    return result.message;
}

template<typename TSource, typename TDestination>
std::pair<TSource, TDestination>* TypesOf(Common::Serialization::Converter<TSource, TDestination> const&);

// What a converter reads, and what it fills.
template<typename TConverter>
using SourceOf = typename std::remove_pointer_t<decltype(TypesOf(std::declval<TConverter>()))>::first_type;
template<typename TConverter>
using DestinationOf = typename std::remove_pointer_t<decltype(TypesOf(std::declval<TConverter>()))>::second_type;

/// The two converters of a record, and what they do to its values.
template<typename TToWire, typename TToDomain>
struct Converters
{
    using ToWire = TToWire;
    using ToDomain = TToDomain;
    using Domain = SourceOf<TToWire>;
    using Wire = SourceOf<TToDomain>;

    static Wire Sent(Domain const& value, Wire wire = {})
    {
        EXPECT_EQ(Tests::Told<TToWire>(value, wire), "");
        return wire;
    }

    static Domain Received(Wire const& wire, Domain domain = Domain())
    {
        EXPECT_EQ(Told(wire, domain), "");
        return domain;
    }

    static std::string Told(Wire const& wire, Domain& domain) { return Tests::Told<TToDomain>(wire, domain); }
};

/// Holds one pair of converters to what every pair owes: a value comes back equal from the wire record, from the bytes of
/// each protocol; an rvalue source does the same and stays intact; GetLastConversionError() is always empty. `fresh` is
/// the destination that reading starts from.
template<typename TConverters, typename TDomain = typename TConverters::Domain>
void ExpectRoundTrip(std::type_identity_t<TDomain> const& value, std::type_identity_t<TDomain> const& fresh = TDomain())
{
    using Wire = typename TConverters::Wire;
    typename TConverters::ToWire const toWire;
    typename TConverters::ToDomain const toDomain;

    Wire wire;
    ASSERT_TRUE(toWire.To(value, wire).success);
    TDomain direct = fresh;
    ASSERT_TRUE(toDomain.To(wire, direct).success);
    EXPECT_EQ(direct, value);

    for (auto const& protocol : Protocols())
    {
        auto const received = Read<Wire>(Written(wire, *protocol), *protocol);
        EXPECT_EQ(received, wire);
        TDomain domain = fresh;
        ASSERT_TRUE(toDomain.To(received, domain).success);
        EXPECT_EQ(domain, value);
    }

    TDomain source = value;
    Wire again;
    EXPECT_TRUE(toWire.To(std::move(source), again).success);
    EXPECT_EQ(source, value);
    EXPECT_EQ(again, wire);
    TDomain back = fresh;
    EXPECT_TRUE(toDomain.To(std::move(again), back).success);
    EXPECT_EQ(back, value);
    EXPECT_EQ(again, wire);
    EXPECT_STREQ(toWire.GetLastConversionError(), "");
    EXPECT_STREQ(toDomain.GetLastConversionError(), "");
}

/// For records without required fields whose reader patches the destination: a value also comes back from its wire fields
/// applied one after the other, so no field goes by another one's flag.
template<typename TConverters, typename TDomain = typename TConverters::Domain>
void ExpectFieldByField(std::type_identity_t<TDomain> const& value,
                        std::type_identity_t<TDomain> const& fresh = TDomain())
{
    TDomain assembled = fresh;
    for (auto const& field : FieldByField(TConverters::Sent(value)))
        EXPECT_EQ(TConverters::Told(Read<typename TConverters::Wire>(field), assembled), "");
    EXPECT_EQ(assembled, value);
}

/// Applies the wire fields of a value one after the other, and gives the ids of those that are enough alone; with the others
/// it fails as told.
template<typename TConverters>
std::string FieldsThatCount(typename TConverters::Domain const& value, typename TConverters::Domain& assembled,
                            std::string const& failure)
{
    std::string counted;
    for (auto const& field : FieldByField(TConverters::Sent(value)))
    {
        auto const told = TConverters::Told(Read<typename TConverters::Wire>(field), assembled);
        if (told.empty())
            counted += std::to_string(field[2]) + ' '; // its id, behind the type
        else
            EXPECT_EQ(told, failure);
    }
    return counted;
}

} // namespace Talvo::Tests
