#pragma once

#include "records/Pairs.h"

#include "Domain/CorvaneData/Channels/Boundary.h"
#include "Domain/CorvaneData/Channels/PlayerClipOnAir.h"
#include "Domain/CorvaneData/Channels/PlayerState.h"
#include "Domain/CorvaneData/Channels/RecorderState.h"
#include "Domain/CorvaneData/Servers/ServerInfo.h"
#include "Thrift/Data/Channels/FromLoadBoundary.h"
#include "Thrift/Data/Channels/FromPlayerClipOnAir.h"
#include "Thrift/Data/Channels/FromPlayerState.h"
#include "Thrift/Data/Channels/FromRecorderState.h"
#include "Thrift/Data/Channels/ToLoadBoundary.h"
#include "Thrift/Data/Channels/ToPlayerClipOnAir.h"
#include "Thrift/Data/Channels/ToPlayerState.h"
#include "Thrift/Data/Channels/ToRecorderState.h"
#include "Thrift/Data/Servers/FromServerInfo.h"
#include "Thrift/Data/Servers/ToServerInfo.h"

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
