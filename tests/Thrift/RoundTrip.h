#pragma once

#include "tests/Thrift/WireBytes.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
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

/// Holds one pair of converters to what every pair owes: a value comes back equal from the wire record, from the bytes of
/// each protocol; an rvalue source does the same and stays intact; GetLastConversionError() is always empty. `fresh` is
/// the destination that reading starts from.
template<typename TToWire, typename TToDomain, typename TWire, typename TDomain>
void ExpectRoundTrip(TDomain const& value, TDomain const& fresh = TDomain())
{
    TToWire const toWire;
    TToDomain const toDomain;

    TWire wire;
    ASSERT_TRUE(toWire.To(value, wire).success);
    TDomain direct = fresh;
    ASSERT_TRUE(toDomain.To(wire, direct).success);
    EXPECT_EQ(direct, value);

    for (auto const& protocol : Protocols())
    {
        auto const received = Read<TWire>(Written(wire, *protocol), *protocol);
        EXPECT_EQ(received, wire);
        TDomain domain = fresh;
        ASSERT_TRUE(toDomain.To(received, domain).success);
        EXPECT_EQ(domain, value);
    }

    TDomain source = value;
    TWire again;
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
template<typename TToWire, typename TToDomain, typename TWire, typename TDomain>
void ExpectFieldByField(TDomain const& value, TDomain const& fresh = TDomain())
{
    TWire wire;
    ASSERT_TRUE(TToWire().To(value, wire).success);
    TDomain assembled = fresh;
    for (auto const& field : FieldByField(wire)) EXPECT_TRUE(TToDomain().To(Read<TWire>(field), assembled).success);
    EXPECT_EQ(assembled, value);
}

} // namespace Talvo::Tests
