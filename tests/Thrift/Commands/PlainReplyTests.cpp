#include "tests/Thrift/Commands/Values.h"
#include "tools/records/Commands.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::HighLevelOperations::Commands;
using namespace Corvane::Zelmar::Serialization::Thrift::Commands;
using Corvane::Data::Guid;

using SuccessConverters = Converters<SuccessReplyToThriftConverter, ThriftToSuccessReplyConverter>;
using FailureConverters = Converters<FailureReplyToThriftConverter, ThriftToFailureReplyConverter>;
using UnknownConverters = Converters<UnknownCommandReplyToThriftConverter, ThriftToUnknownCommandReplyConverter>;

template<typename TToWire, typename TToDomain>
void ExpectIdentifierOnly()
{
    using Pair = Converters<TToWire, TToDomain>;
    typename Pair::Domain params;
    params.commandGuid = Id('c');
    ExpectParams<Pair>(params, params);

    // Of a wrong number of bytes the first sixteen count, and what is missing is zero.
    typename Pair::Wire wire;
    for (auto const size : {0u, 15u, 17u, 1'000'000u})
    {
        std::string bytes(size, 'x');
        wire.commandGuid = WireId(bytes);
        bytes.resize(Guid::Size);
        EXPECT_EQ(Pair::Received(wire, params).commandGuid,
                  Guid(reinterpret_cast<unsigned char const*>(bytes.data()), Guid::Size));
    }
    wire.commandGuid = WithoutFlags(WireId("sixteen bytes or"));
    EXPECT_EQ(Pair::Received(wire, params).commandGuid, Guid::Empty());
}

TEST(IdentifierOnlyConversion, RoundTripAndBadIdentifiers)
{
    ExpectIdentifierOnly<PingCommandParamsToThriftConverter, ThriftToPingCommandParamsConverter>();
    ExpectIdentifierOnly<GetClipsCommandParamsToThriftConverter, ThriftToGetClipsCommandParamsConverter>();
    ExpectIdentifierOnly<GetAnglesGroupsCommandParamsToThriftConverter,
                         ThriftToGetAnglesGroupsCommandParamsConverter>();
    ExpectIdentifierOnly<GetTrainsCommandParamsToThriftConverter, ThriftToGetTrainsCommandParamsConverter>();
    ExpectIdentifierOnly<GetChannelsCommandParamsToThriftConverter, ThriftToGetChannelsCommandParamsConverter>();
    ExpectIdentifierOnly<GetMultiviewerDataCommandParamsToThriftConverter,
                         ThriftToGetMultiviewerDataCommandParamsConverter>();
}

TEST(SuccessReplyConversion, NeedsItsIdentifier)
{
    SuccessReply reply;
    reply.commandGuid = Id('c');
    ExpectRoundTrip<SuccessConverters>(reply);

    auto wire = SuccessConverters::Sent(SuccessReply());
    EXPECT_TRUE(wire.__isset.guid);
    EXPECT_EQ(SuccessConverters::Told(WithoutFlags(wire), reply), "SuccessReply is empty");
    EXPECT_EQ(reply.commandGuid, Id('c'));
    EXPECT_EQ(SuccessConverters::Received(wire, reply).commandGuid, Guid::Empty());
}

TEST(FailureReplyConversion, IdentifierStartsTheReplyAnewAndATextAloneIsPutIntoIt)
{
    FailureReply const held(Id('h'), "held");
    for (auto const* const error : {"An error", ""})
        ExpectRoundTrip<FailureConverters>(FailureReply(Id('c'), error), held);
    EXPECT_FALSE(FailureConverters::Sent({Id('c'), ""}).__isset.error);

    auto const wire = FailureConverters::Sent({Id('c'), "sent"});
    EXPECT_TRUE(wire.__isset.guid && wire.__isset.error);
    auto const expectReceived = [&](bool const guid, bool const error, FailureReply const& expected, char const* told)
    {
        auto partial = wire;
        partial.__isset.guid = guid;
        partial.__isset.error = error;
        auto reply = held;
        EXPECT_EQ(FailureConverters::Told(partial, reply), told);
        EXPECT_EQ(reply, expected);
    };
    expectReceived(true, true, {Id('c'), "sent"}, "");
    expectReceived(true, false, {Id('c'), ""}, "");
    expectReceived(false, true, {Id('h'), "sent"}, "");
    expectReceived(false, false, held, "FailureReply is empty");
}

TEST(UnknownCommandReplyConversion, IdentifierDoesNotTravelAndTheFlagDoesNotCount)
{
    auto const wire = UnknownConverters::Sent({Id('c'), "MakeCoffee"});
    EXPECT_EQ(Printed(wire), "UnknownCommandReply(commandType=MakeCoffee)");
    EXPECT_FALSE(wire.__isset.commandType);
    for (auto const& protocol : Protocols())
        EXPECT_EQ(UnknownConverters::Received(Read<Generated::UnknownCommandReply>(Written(wire, *protocol), *protocol),
                                              {Id('h'), "held"}),
                  UnknownCommandReply(Guid::Empty(), "MakeCoffee"));
    EXPECT_EQ(UnknownConverters::Received(wire, {Id('h'), "held"}), UnknownCommandReply(Guid::Empty(), "MakeCoffee"));
    EXPECT_EQ(UnknownConverters::Received({}, {Id('h'), "held"}), UnknownCommandReply(Guid::Empty(), ""));

    // The rvalue forms, which the other pairs show in their round trips.
    Generated::UnknownCommandReply moved;
    EXPECT_TRUE(UnknownCommandReplyToThriftConverter().To(UnknownCommandReply(Id('c'), "MakeCoffee"), moved).success);
    EXPECT_EQ(moved, wire);
    UnknownCommandReply reply(Id('h'), "held");
    EXPECT_TRUE(ThriftToUnknownCommandReplyConverter().To(std::move(moved), reply).success);
    EXPECT_EQ(reply.commandType, "MakeCoffee");
}

} // namespace
} // namespace Talvo::Tests
