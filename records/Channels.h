#pragma once

#include "records/Pairs.h"

#include "Domain/CorvaneData/Channels/Boundary.h"
#include "Domain/CorvaneData/Channels/PlayerClipOnAir.h"
#include "Domain/CorvaneData/Channels/PlayerState.h"
#include "Domain/CorvaneData/Channels/RecorderState.h"
#include "Domain/CorvaneData/Servers/ServerInfo.h"
#include "Thrift/Channels.h"
#include "Thrift/Servers.h"

namespace Talvo::Records
{

constexpr auto ChannelPairs()
{
    using namespace Corvane::Zelmar::Serialization::Thrift::Data::Channels;
    return PairList<Pair<LoadBoundaryToThriftConverter, ThriftToLoadBoundaryConverter>,
                    Pair<PlayerClipOnAirToThriftConverter, ThriftToPlayerClipOnAirConverter>,
                    Pair<PlayerStateToThriftConverter, ThriftToPlayerStateConverter>,
                    Pair<RecorderStateToThriftConverter, ThriftToRecorderStateConverter>>();
}

constexpr auto ServerPairs()
{
    using namespace Corvane::Zelmar::Serialization::Thrift::Data::Servers;
    return PairList<Pair<ServerInfoToThriftConverter, ThriftToServerInfoConverter>>();
}

} // namespace Talvo::Records
