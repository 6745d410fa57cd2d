#include "tests/Thrift/Commands/Values.h"

#include "Domain/HighLevelOperations/Commands/ChannelCommandReply.h"
#include "Thrift/Commands/FromChannelCommandReply.h"
#include "Thrift/Commands/ToChannelCommandReply.h"
#include "generated/ChannelCommandReply_types.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::HighLevelOperations::Commands;
using namespace Corvane::Zelmar::Serialization::Thrift::Commands;
using Corvane::Data::OperationResult;
using Corvane::Data::OperationStatus;
using Status = OperationStatus::Status;
using ChannelGuid = Corvane::Data::Channels::Guid;

using Reply = Converters<ChannelCommandReplyToThriftConverter, ThriftToChannelCommandReplyConverter>;

ChannelGuid Channel(char const name)
{
    return name == '.' ? ChannelGuid() : Id<ChannelGuid>(name);
}

// The tests write results as pairs of a channel (a point for the default one) and the number of a status.

/// Returns a wire record with these results. The flags inside the results are clear.
Generated::ChannelCommandReply WireReply(std::string_view const results, bool const hasGuid = true)
{
    Generated::ChannelCommandReply wire;
    wire.guid = WireId(std::string(16, 'w'));
    wire.__isset.guid = hasGuid;
    wire.__isset.channelResults = true;
    for (std::size_t i = 0; i < results.size(); i += 2)
    {
        auto& result = wire.channelResults.emplace_back();
        auto const channel = Channel(results[i]);
        result.guid = WireId({reinterpret_cast<char const*>(channel.Bytes()), channel.Size});
        result.status =
            WireStatus(static_cast<Corvane::Data::Generated::OperationStatusStatus::type>(results[i + 1] - '0'));
    }
    return wire;
}

ChannelCommandReply Holding(std::string_view const results)
{
    ChannelCommandReply reply(Id('h'));
    for (; 2 * static_cast<std::size_t>(reply.resultCount) < results.size(); ++reply.resultCount)
    {
        auto const i = static_cast<std::size_t>(reply.resultCount);
        reply.results[i] = {Channel(results[2 * i]),
                            {static_cast<Status>(results[2 * i + 1] - '0'), OperationResult::Unknown}};
    }
    return reply;
}

/// Returns the number of results and the results, with the first one even if the number is 0 or less.
std::string Shown(ChannelCommandReply const& reply)
{
    std::string shown = std::to_string(reply.resultCount) + ':';
    std::size_t i = 0;
    do
    {
        auto const& [channel, status] = reply.results[i];
        shown += channel == ChannelGuid() ? '.' : static_cast<char>(channel.Bytes()[0]);
        shown += std::to_string(static_cast<int>(status.status));
    } while (static_cast<std::int32_t>(++i) < reply.resultCount);
    return shown;
}

TEST(ChannelCommandReplyConversion, WritesAtLeastOneResultAndAtMostOnePerSlot)
{
    auto twelve = Holding("a1b1c1d1e1f1g1h1i1j1k1l1");
    EXPECT_EQ(Reply::Received(Reply::Sent(twelve), ChannelCommandReply(Id('x'))), twelve);
    EXPECT_EQ(Reply::Received(Reply::Sent(ChannelCommandReply(Id('c'))), twelve), ChannelCommandReply(Id('c')));
    for (auto const count : {0, 1, -1, std::numeric_limits<std::int32_t>::min()})
    {
        twelve.resultCount = count;
        EXPECT_EQ(Reply::Sent(twelve).channelResults.size(), 1u);
    }
    for (auto const count : {13, std::numeric_limits<std::int32_t>::max()})
    {
        twelve.resultCount = count;
        EXPECT_EQ(Reply::Sent(twelve).channelResults.size(), 12u);
    }
}

TEST(ChannelCommandReplyConversion, ResultsAreSortedIntoTwelveSlots)
{
    auto const expectReceived = [](std::string_view const results, std::string const& expected)
    {
        auto const reply = Reply::Received(WireReply(results), Holding("x1y2z3"));
        EXPECT_EQ(Shown(reply), expected) << results;
        EXPECT_EQ(reply.commandGuid, Id('w'));
        EXPECT_EQ(reply.results[11].channel == ChannelGuid(), reply.resultCount < 12); // unused slots hold the default
    };
    expectReceived("", "0:.0");
    expectReceived("b1a2", "2:b1a2");
    expectReceived("a1b1a2", "2:a2b1"); // a repeated channel overwrites its slot
    expectReceived("a1b1b2", "2:a1b2");
    expectReceived("a1b1c1d1e1f1g1h1i1j1k1l1", "12:a1b1c1d1e1f1g1h1i1j1k1l1");
    expectReceived("a1b1c1d1e1f1g1h1i1j1k1l1m1", "12:a1b1c1d1e1f1g1h1i1j1k1l1"); // a thirteenth is dropped
    expectReceived("a1b1c1d1e1f1g1h1i1j1k1l1m1l2", "12:a1b1c1d1e1f1g1h1i1j1k1l2");
    expectReceived(".1", "0:.1"); // the default channel uses the first slot and is not counted
    expectReceived(".1a2", "1:a2");
    expectReceived("a2.1", "2:a2.1");

    auto wire = WireReply("a1a2a1");
    wire.channelResults[1].guid.value += "17th byte and more";
    EXPECT_EQ(Shown(Reply::Received(wire, Holding(""))), "1:a1");
    wire.channelResults[2].status = {}; // a status without content becomes a new one
    EXPECT_EQ(Shown(Reply::Received(wire, Holding(""))), "1:a0");
}

TEST(ChannelCommandReplyConversion, WithoutIdentifierMergesResultsIntoTheReplyAndFails)
{
    auto const expectPut = [](std::string_view const results, std::string_view const held, std::string const& expected)
    {
        auto reply = Holding(held);
        EXPECT_EQ(Reply::Told(WireReply(results, false), reply), "ChannelCommandReply is empty");
        EXPECT_EQ(Shown(reply), expected) << results << " into " << held;
        EXPECT_EQ(reply.commandGuid, Id('h'));
    };
    expectPut("b3c3", "a1b1", "3:a1b3c3");
    expectPut("b3", "", "1:b3");
    expectPut("", "", "0:.0");
    expectPut("", "a1", "2:a1.0"); // the default result is added
    expectPut("m3c3", "a1b1c1d1e1f1g1h1i1j1k1l1", "12:a1b1c3d1e1f1g1h1i1j1k1l1");

    auto negative = Holding("a1");
    negative.resultCount = -1;
    EXPECT_EQ(Reply::Told(WireReply("b3", false), negative), "ChannelCommandReply is empty");
    EXPECT_EQ(Shown(negative), "-1:a1");
}

TEST(ChannelCommandReplyConversion, WithoutResultsNeedsAnIdentifier)
{
    auto wire = WireReply("a1");
    wire.__isset.channelResults = false;
    EXPECT_EQ(Reply::Received(wire, Holding("x1y2")), ChannelCommandReply(Id('w')));
    auto reply = Holding("x1y2");
    EXPECT_EQ(Reply::Told(WithoutFlags(wire), reply), "ChannelCommandReply is empty");
    EXPECT_EQ(reply, Holding("x1y2"));
}

} // namespace
} // namespace Talvo::Tests
