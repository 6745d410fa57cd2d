#pragma once

// Internal, never installed.

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/Multiviewer/PlayerDataOverrides.h"
#include "Thrift/Data/FromGuid.h"
#include "Thrift/Data/FromPlayerDataOverrides.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Data/ToPlayerDataOverrides.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/Guid_types.h"
#include "generated/PlayerDataOverrides_types.h"

#include <map>
#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

// The overrides by player that multiviewer parameters and replies carry. The first failure ends the conversion.

using PlayersDataOverrides = std::map<Corvane::Data::Channels::Guid, Multiviewer::PlayerDataOverrides>;

/// Writes the overrides; `add(channel, overrides)` adds one entry to the wire record.
template<typename TAdd>
Common::Serialization::ConversionResult SendOverrides(PlayersDataOverrides const& source, TAdd const& add)
{
    static Data::GuidToThriftConverter const guidConverter;
    static Data::FromPlayerDataOverrides const fromPlayerDataOverrides;

    for (auto const& [channel, overrides] : source)
    {
        Corvane::Data::Generated::PlayerDataOverrides wireOverrides;
        if (auto const result = fromPlayerDataOverrides.To(overrides, wireOverrides); !result.success)
            return Nested(result);
        Corvane::Data::Generated::Guid wireChannel;
        if (auto const result = guidConverter.To(channel, wireChannel); !result.success) return Nested(result);
        add(std::move(wireChannel), std::move(wireOverrides));
    }
    return Success();
}

/// Reads the overrides. An existing entry of the same channel in the destination is kept.
inline Common::Serialization::ConversionResult
ReadOverrides(std::map<Corvane::Data::Generated::Guid, Corvane::Data::Generated::PlayerDataOverrides> const& source,
              PlayersDataOverrides& destination)
{
    static Data::ThriftToGuidConverter const guidConverter;
    static Data::ToPlayerDataOverrides const toPlayerDataOverrides;

    for (auto const& [wireChannel, wireOverrides] : source)
    {
        PathStep const step("playersDataOverrides", wireChannel.value);
        Corvane::Data::Channels::Guid channel;
        if (auto const result = Read(step, guidConverter, wireChannel, channel); !result.success) return Nested(result);
        Multiviewer::PlayerDataOverrides overrides;
        if (auto const result = Read(step, toPlayerDataOverrides, wireOverrides, overrides); !result.success)
            return Nested(result);
        destination.emplace(channel, std::move(overrides));
    }
    return Success();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
