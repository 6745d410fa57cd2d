#include "records/Commands.h"
#include "tests/Thrift/Commands/Values.h"

#include <gtest/gtest.h>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::HighLevelOperations::Commands;
using namespace Corvane::Zelmar::Serialization::Thrift::Commands;

using FailureConverters = Converters<FailureReplyToThriftConverter, ThriftToFailureReplyConverter>;

TEST(FailureReplyConversion, IdentifierReplacesTheReplyAndATextAlonePatchesIt)
{
    FailureReply const held(Id('h'), "held");
    auto const wire = FailureConverters::Sent({Id('c'), "sent"});
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

TEST(UnknownCommandReplyConversion, IdentifierIsLost)
{
    using Pair = Converters<UnknownCommandReplyToThriftConverter, ThriftToUnknownCommandReplyConverter>;
    auto const wire = Pair::Sent({Id('c'), "MakeCoffee"});
    EXPECT_EQ(Pair::Received(wire, {Id('h'), "held"}), UnknownCommandReply(Corvane::Data::Guid::Empty(), "MakeCoffee"));
}

} // namespace
} // namespace Talvo::Tests
