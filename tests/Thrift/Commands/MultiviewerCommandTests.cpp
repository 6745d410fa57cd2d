#include "tests/Thrift/Data/MultiviewerValues.h"

#include "Domain/HighLevelOperations/Commands/GetMultiviewerDataCommandReply.h"
#include "Domain/HighLevelOperations/Commands/SetMultiviewerDataCommandParams.h"
#include "Thrift/Commands/FromGetMultiviewerDataCommandReply.h"
#include "Thrift/Commands/FromSetMultiviewerDataCommandParams.h"
#include "Thrift/Commands/ToGetMultiviewerDataCommandReply.h"
#include "Thrift/Commands/ToSetMultiviewerDataCommandParams.h"
#include "generated/GetMultiviewerDataCommandReply_types.h"
#include "generated/SetMultiViewerDataCommandParams_types.h"
#include "tests/Thrift/Commands/Values.h"

#include <gtest/gtest.h>

#include <string>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::HighLevelOperations::Commands;
using namespace Corvane::Zelmar::Serialization::Thrift::Commands;
using Corvane::Data::OperationResult;
using Corvane::Data::OperationStatus;
using PlayerGuid = Corvane::Data::Channels::Guid;

using Get =
    Converters<GetMultiviewerDataCommandReplyToThriftConverter, ThriftToGetMultiviewerDataCommandReplyConverter>;
using Set =
    Converters<SetMultiviewerDataCommandParamsToThriftConverter, ThriftToSetMultiviewerDataCommandParamsConverter>;

/// Returns entries of the players a and b, each under the key of its player.
template<typename TDomain>
TDomain Full()
{
    TDomain full;
    full.commandGuid = Id('c');
    full.playersDataOverrides = {{Id<PlayerGuid>('a'), FullOverrides('a')}, {Id<PlayerGuid>('b'), NoOverrides('b')}};
    return full;
}

GetMultiviewerDataCommandReply FullReply()
{
    auto reply = Full<GetMultiviewerDataCommandReply>();
    reply.operationStatus = {OperationStatus::Status::Failed, OperationResult::UsedResource};
    return reply;
}

/// Adds keys that become the identifier of the player a. They follow the key that is equal to it.
void AddKeysOfPlayerA(auto& wireMap)
{
    auto const other = wireMap.at(WireId(std::string(16, 'b')));
    wireMap[WireId(std::string(17, 'a'))] = other;
    wireMap[WireId(std::string(1'000'000, 'a'))] = other;
}

TEST(GetMultiviewerDataReplyConversion, ExistingKeyKeepsItsEntry)
{
    auto wire = Get::Sent(FullReply());
    auto other = FullReply();
    other.playersDataOverrides[Id<PlayerGuid>('a')] = NoOverrides('a');
    EXPECT_EQ(Get::Sent(other, wire).playersDataOverrides, wire.playersDataOverrides);
    AddKeysOfPlayerA(wire.playersDataOverrides);
    EXPECT_EQ(Get::Received(wire), FullReply());
}

TEST(SetMultiviewerDataConversion, IdentifierIsNeitherWrittenNorRead)
{
    auto const full = Full<SetMultiviewerDataCommandParams>();
    Generated::SetMultiviewerDataCommandParams filled;
    filled.commandGuid = WireId("by the caller");
    auto const wire = Set::Sent(full, filled);
    EXPECT_EQ(wire.commandGuid, WireId("by the caller"));
    auto const first = Set::Received(wire, full);
    auto const second = Set::Received(wire, full);
    EXPECT_NE(first.commandGuid, second.commandGuid);
    EXPECT_NE(first.commandGuid, full.commandGuid);
}

TEST(SetMultiviewerDataConversion, ExistingKeyIsReplacedWhenWrittenAndKeptWhenRead)
{
    auto const full = Full<SetMultiviewerDataCommandParams>();
    auto other = full;
    other.playersDataOverrides[Id<PlayerGuid>('a')] = NoOverrides('a');
    auto wire = Set::Sent(full, Set::Sent(other));
    EXPECT_EQ(wire, Set::Sent(full));
    AddKeysOfPlayerA(wire.playersDataOverrides);
    EXPECT_EQ(Set::Received(wire).playersDataOverrides, full.playersDataOverrides);
}

} // namespace
} // namespace Talvo::Tests
