#pragma once

// Internal, never installed.

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Thrift/Data/Identifiers.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

// The sets and maps of channels that transport commands carry. Going out they tell whether there was any channel, which
// is what sets the wire's flag; coming in a clear flag empties the destination and a set one only adds to it.

using ChannelSet = std::unordered_set<Corvane::Data::Channels::Guid>;
template<typename TValue>
using ChannelMap = std::unordered_map<Corvane::Data::Channels::Guid, TValue>;

inline Corvane::Data::Channels::Guid const& ChannelOf(ChannelSet::value_type const& channel) noexcept
{
    return channel;
}

template<typename TValue>
Corvane::Data::Channels::Guid const&
ChannelOf(std::pair<Corvane::Data::Channels::Guid const, TValue> const& entry) noexcept
{
    return entry.first;
}

/// Calls `visit` with each entry, in the order of the channels, which is that of the wire's keys: each then goes to the
/// end of a new set or map. A few entries are visited as they lie, since sorting them would cost more than it saves.
template<typename TContainer, typename TVisit>
void VisitSorted(TContainer const& source, TVisit const& visit)
{
    constexpr std::size_t few = 10;
    if (source.size() <= few)
    {
        for (auto const& entry : source) visit(entry);
        return;
    }
    std::vector<typename TContainer::value_type const*> entries;
    entries.reserve(source.size());
    for (auto const& entry : source) entries.push_back(&entry);
    std::sort(entries.begin(), entries.end(),
              [](auto const* left, auto const* right) { return ChannelOf(*left) < ChannelOf(*right); });
    for (auto const* const entry : entries) visit(*entry);
}

/// Makes room for `count` more entries, if there is not enough.
template<typename TContainer>
void ReserveMore(TContainer& destination, std::size_t const count)
{
    if (auto const total = destination.size() + count; total > destination.bucket_count()) destination.reserve(total);
}

inline bool SendChannels(ChannelSet const& source, std::set<Corvane::Data::Generated::Guid>& destination)
{
    // Neighbours in a hash set are often neighbours in order, so the last place is a good hint even without sorting.
    auto place = destination.end();
    VisitSorted(source, [&](auto const& channel) { place = destination.insert(place, SentGuid(channel)); });
    return !source.empty();
}

inline void ReadChannels(bool const isSet, std::set<Corvane::Data::Generated::Guid> const& source,
                         ChannelSet& destination)
{
    if (!isSet)
    {
        destination.clear();
        return;
    }
    ReserveMore(destination, source.size());
    for (auto const& channel : source) destination.insert(ReadGuidAs<Corvane::Data::Channels::Guid>(channel));
}

/// `send(value, wireValue)` converts one value; the wire's entry of the same channel is replaced.
template<typename TValue, typename TWireValue, typename TSend>
bool SendByChannel(ChannelMap<TValue> const& source, std::map<Corvane::Data::Generated::Guid, TWireValue>& destination,
                   TSend const& send)
{
    auto place = destination.end();
    VisitSorted(source,
                [&](auto const& entry)
                {
                    TWireValue wireValue;
                    send(entry.second, wireValue);
                    place = destination.insert_or_assign(place, SentGuid(entry.first), std::move(wireValue));
                });
    return !source.empty();
}

/// `read(wireValue)` converts one value; the destination's entry of the same channel stays.
template<typename TValue, typename TWireValue, typename TRead>
void ReadByChannel(bool const isSet, std::map<Corvane::Data::Generated::Guid, TWireValue> const& source,
                   ChannelMap<TValue>& destination, TRead const& read)
{
    if (!isSet)
    {
        destination.clear();
        return;
    }
    ReserveMore(destination, source.size());
    for (auto const& [channel, wireValue] : source)
        destination.emplace(ReadGuidAs<Corvane::Data::Channels::Guid>(channel), read(wireValue));
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
