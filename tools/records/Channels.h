#pragma once

#include "tools/RecordType.h"

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

#include "generated/LoadBoundary_types.h"
#include "generated/PlayerClipOnAir_types.h"
#include "generated/PlayerInfoOnAir_types.h"
#include "generated/PlayerState_types.h"
#include "generated/RecorderState_types.h"
#include "generated/ServerInfo_types.h"

#include <tuple>

namespace Talvo::Tools
{

constexpr auto ChannelRecords()
{
    using namespace Corvane::Zelmar::Serialization::Thrift::Data::Channels;

    return std::tuple{
        Record<Generated::AbsoluteLoadBoundary>("AbsoluteLoadBoundary"),
        Record<Generated::LoadBoundary, LoadBoundaryToThriftConverter, ThriftToLoadBoundaryConverter,
               Corvane::Data::Channels::Boundary>("LoadBoundary"),
        Record<Generated::PlayerClipOnAir, PlayerClipOnAirToThriftConverter, ThriftToPlayerClipOnAirConverter,
               Corvane::Data::Channels::PlayerClipOnAir>("PlayerClipOnAir"),
        Record<Generated::PlayerInfoOnAir>("PlayerInfoOnAir"),
        Record<Generated::PlayerState, PlayerStateToThriftConverter, ThriftToPlayerStateConverter,
               Corvane::Data::Channels::PlayerState>("PlayerState"),
        Record<Generated::RecorderState, RecorderStateToThriftConverter, ThriftToRecorderStateConverter,
               Corvane::Data::Channels::RecorderState>("RecorderState"),
        Record<Generated::RelativeLoadBoundary>("RelativeLoadBoundary"),
        Record<Generated::SpecializedLoadBoundary>("SpecializedLoadBoundary"),
    };
}

constexpr auto ServerRecords()
{
    using namespace Corvane::Zelmar::Serialization::Thrift::Data::Servers;

    return std::tuple{
        Record<Generated::ServerInfo, ServerInfoToThriftConverter, ThriftToServerInfoConverter,
               Corvane::Data::Servers::ServerInfo>("ServerInfo"),
    };
}

} // namespace Talvo::Tools
