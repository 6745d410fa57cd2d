#pragma once

#include "Domain/CorvaneData/OperationStatus.h"
#include "generated/OperationStatus_types.h"
#include "tests/Thrift/Data/Values.h"
#include "tests/Thrift/RoundTrip.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace Talvo::Tests
{

inline Corvane::Data::Generated::OperationStatus
WireStatus(Corvane::Data::Generated::OperationStatusStatus::type const value)
{
    Corvane::Data::Generated::OperationStatus status;
    status.status = value;
    status.__isset.status = true;
    return status;
}

/// A wire record whose own flags are clear, and its fields all there.
template<typename TWire>
TWire WithoutFlags(TWire wire)
{
    if constexpr (requires { wire.__isset; }) wire.__isset = {};
    return wire;
}

/// What all parameters owe: round trips; an identifier that is sent with its flag, and taken without it. Reading the full
/// record without flags gives `taken` from new parameters, and `kept` from full ones.
template<typename TConverters, typename TDomain = typename TConverters::Domain>
void ExpectParams(TDomain const& full, TDomain const& taken, TDomain const& kept)
{
    for (auto const& params : {full, kept}) ExpectRoundTrip<TConverters>(params);
    TDomain const fresh;
    EXPECT_EQ(TConverters::Received(TConverters::Sent(fresh)), fresh);

    auto const wire = TConverters::Sent(full);
    if constexpr (requires { wire.__isset.commandGuid; })
    {
        EXPECT_TRUE(wire.__isset.commandGuid);
    }
    auto held = full;
    held.commandGuid = Id('h');
    EXPECT_EQ(TConverters::Received(wire, held), full);
    EXPECT_EQ(TConverters::Received(WithoutFlags(wire)), taken);
    EXPECT_EQ(TConverters::Received(WithoutFlags(wire), held), kept);
}

template<typename TConverters, typename TDomain = typename TConverters::Domain>
void ExpectParams(TDomain const& full, TDomain const& taken)
{
    ExpectParams<TConverters>(full, taken, taken);
}

/// A list of parameters: the flag tells whether there is an element, sending appends, reading replaces. `full` has no
/// fields but the identifier and the list, of at least one element.
template<typename TConverters>
void ExpectList(typename TConverters::Domain const& full, auto const list, auto const wireList, auto const isFlagged)
{
    auto empty = full;
    (empty.*list).clear();
    ExpectParams<TConverters>(full, empty);

    auto wire = TConverters::Sent(full);
    EXPECT_TRUE(isFlagged(wire));
    EXPECT_FALSE(isFlagged(TConverters::Sent(empty)));
    auto const again = TConverters::Sent(full, wire);
    ASSERT_EQ((again.*wireList).size(), 2 * (full.*list).size());
    EXPECT_EQ((again.*wireList).front(), (wire.*wireList).front());
    (wire.*wireList).clear();
    EXPECT_EQ(TConverters::Received(wire, full), empty);
}

/// The same trips as ExpectRoundTrip, for replies that can't be copied or compared: `make` builds the value, `shown` gives
/// what of it can be compared, `fresh` builds the destination.
template<typename TConverters>
void ExpectReplyRoundTrip(auto const& make, auto const& shown, auto const& fresh)
{
    using Wire = typename TConverters::Wire;
    auto const expected = shown(make());
    auto const wire = TConverters::Sent(make());
    for (auto const& protocol : Protocols())
    {
        auto const received = Read<Wire>(Written(wire, *protocol), *protocol);
        EXPECT_EQ(received, wire);
        EXPECT_EQ(shown(TConverters::Received(received, fresh())), expected);
    }

    Wire again;
    EXPECT_TRUE(typename TConverters::ToWire().To(make(), again).success);
    EXPECT_EQ(again, wire);
    auto domain = fresh();
    EXPECT_TRUE(typename TConverters::ToDomain().To(std::move(again), domain).success);
    EXPECT_EQ(shown(std::move(domain)), expected);
    EXPECT_EQ(again, wire);
}

} // namespace Talvo::Tests
