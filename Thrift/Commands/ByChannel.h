#pragma once

// Internal, never installed.

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Thrift/Data/Identifiers.h"

#include <map>
#include <set>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

// The sets and maps of channels that transport commands carry. Going out they tell whether there was any channel, which
// is what sets the wire's flag; coming in a clear flag empties the destination and a set one only adds to it.

using ChannelSet = std::unordered_set<Corvane::Data::Channels::Guid>;
template<typename TValue>
using ChannelMap = std::unordered_map<Corvane::Data::Channels::Guid, TValue>;

inline bool SendChannels(ChannelSet const& source, std::set<Corvane::Data::Generated::Guid>& destination)
{
    // Neighbours in a hash set are often neighbours in order, so the last place is a good hint for the next one.
    auto place = destination.end();
    for (auto const& channel : source) place = destination.insert(place, SentGuid(channel));
    return !source.empty();
}

inline void ReadChannels(bool const isSet, std::set<Corvane::Data::Generated::Guid> const& source,
                         ChannelSet& destination)
{
    if (!isSet)
        destination.clear();
    else
        for (auto const& channel : source) destination.insert(ReadGuidAs<Corvane::Data::Channels::Guid>(channel));
}

/// `send(value, wireValue)` converts one value; the wire's entry of the same channel is replaced.
template<typename TValue, typename TWireValue, typename TSend>
bool SendByChannel(ChannelMap<TValue> const& source, std::map<Corvane::Data::Generated::Guid, TWireValue>& destination,
                   TSend const& send)
{
    for (auto const& [channel, value] : source)
    {
        TWireValue wireValue;
        send(value, wireValue);
        destination.insert_or_assign(SentGuid(channel), std::move(wireValue));
    }
    return !source.empty();
}

/// `read(wireValue)` converts one value; the destination's entry of the same channel stays.
template<typename TValue, typename TWireValue, typename TRead>
void ReadByChannel(bool const isSet, std::map<Corvane::Data::Generated::Guid, TWireValue> const& source,
                   ChannelMap<TValue>& destination, TRead const& read)
{
    if (!isSet)
        destination.clear();
    else
        for (auto const& [channel, wireValue] : source)
            destination.emplace(ReadGuidAs<Corvane::Data::Channels::Guid>(channel), read(wireValue));
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
