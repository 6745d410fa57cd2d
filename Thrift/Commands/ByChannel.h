#pragma once

// Internal, never installed.

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Thrift/Data/Identifiers.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory_resource>
#include <set>
#include <tuple>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
{

// The sets and maps of channels that transport commands carry. Writing returns whether there was any channel, which
// sets the wire's flag. Reading empties the destination if the flag is clear, and only adds to it if the flag is set.

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

/// Eight bytes as one number that compares as the bytes do.
inline std::uint64_t Word(unsigned char const* const bytes) noexcept
{
    std::uint64_t word = 0;
    for (int i = 0; i < 8; ++i) word = word << 8 | bytes[i];
    return word;
}

/// Up to this many entries, sorting costs more than it saves.
constexpr std::size_t Few = 10;

/// Calls `visit` with each entry in the order of the channels. The wire's keys have the same order, so each entry is
/// inserted at the end of a new set or map.
template<typename TContainer, typename TVisit>
void VisitSorted(TContainer const& source, TVisit const& visit)
{
    struct Place
    {
        std::uint64_t first;
        std::uint64_t second;
        typename TContainer::value_type const* entry;
    };
    std::array<std::byte, 128 * sizeof(Place)> room; // enough in most cases
    std::pmr::monotonic_buffer_resource memory(room.data(), room.size());
    std::pmr::vector<Place> places(&memory);
    places.reserve(source.size());
    for (auto const& entry : source)
    {
        auto const* const bytes = ChannelOf(entry).Bytes();
        places.push_back({Word(bytes), Word(bytes + 8), &entry});
    }
    std::sort(places.begin(), places.end(),
              [](Place const& left, Place const& right)
              { return std::tie(left.first, left.second) < std::tie(right.first, right.second); });
    for (auto const& place : places) visit(*place.entry);
}

/// Reserves room for `count` more entries. A table with enough room is unchanged, because reserve() could make it
/// smaller.
template<typename TContainer>
void ReserveEntries(TContainer& destination, std::size_t const count)
{
    if (auto const total = destination.size() + count; total > destination.bucket_count()) destination.reserve(total);
}

inline bool SendChannels(ChannelSet const& source, std::set<Corvane::Data::Generated::Guid>& destination)
{
    if (source.size() > Few)
        VisitSorted(source, [&](auto const& channel) { destination.insert(destination.end(), SentGuid(channel)); });
    else
    {
        // Neighbours in a hash set are often neighbours in order, so the last place is a good hint for the next one.
        auto place = destination.end();
        for (auto const& channel : source) place = destination.insert(place, SentGuid(channel));
    }
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
    ReserveEntries(destination, source.size());
    for (auto const& channel : source) destination.insert(ReadGuidAs<Corvane::Data::Channels::Guid>(channel));
}

/// Writes the entries; `send(value, wireValue)` converts one value. An entry of the same channel on the wire is
/// replaced.
template<typename TValue, typename TWireValue, typename TSend>
bool SendByChannel(ChannelMap<TValue> const& source, std::map<Corvane::Data::Generated::Guid, TWireValue>& destination,
                   TSend const& send)
{
    auto const convert = [&send](TValue const& value)
    {
        TWireValue wireValue;
        send(value, wireValue);
        return wireValue;
    };
    if (source.size() > Few)
        VisitSorted(source, [&](auto const& entry)
                    { destination.insert_or_assign(destination.end(), SentGuid(entry.first), convert(entry.second)); });
    else
        for (auto const& [channel, value] : source) destination.insert_or_assign(SentGuid(channel), convert(value));
    return !source.empty();
}

/// Reads the entries; `read(wireValue)` converts one value. An existing entry of the same channel in the destination is
/// kept.
template<typename TValue, typename TWireValue, typename TRead>
void ReadByChannel(bool const isSet, std::map<Corvane::Data::Generated::Guid, TWireValue> const& source,
                   ChannelMap<TValue>& destination, TRead const& read)
{
    if (!isSet)
    {
        destination.clear();
        return;
    }
    ReserveEntries(destination, source.size());
    for (auto const& [channel, wireValue] : source)
        destination.emplace(ReadGuidAs<Corvane::Data::Channels::Guid>(channel), read(wireValue));
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Detail
