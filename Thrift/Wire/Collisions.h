#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Thrift/Data/ToGuid.h"
#include "generated/Guid_types.h"

#include <cstddef>
#include <cstdint>
#include <tuple>
#include <type_traits>
#include <unordered_set>
#include <vector>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire::Detail
{

/// Whether a container is a set or map of channels, which the domain holds in a hash table.
template<typename TContainer>
constexpr bool IsKeyedByChannel()
{
    if constexpr (requires { typename TContainer::key_type; })
        return std::is_same_v<typename TContainer::key_type, Corvane::Data::Generated::Guid>;
    else
        return false;
}

inline Corvane::Data::Generated::Guid const& KeyOf(Corvane::Data::Generated::Guid const& entry)
{
    return entry;
}
inline Corvane::Data::Generated::Guid const& KeyOf(auto const& entry)
{
    return entry.first;
}

/// Whether filling a hash table with these channels would take more than linear time: whether an entry finds, on
/// average, more than `MostPerEntry` others in its bucket.
template<typename TContainer>
bool PilesUp(TContainer const& container)
{
    static constexpr std::uint64_t MostPerEntry = 64;

    std::unordered_set<Corvane::Data::Channels::Guid> table;
    table.reserve(container.size());
    std::vector<std::uint32_t> buckets(table.bucket_count());
    std::uint64_t met = 0;
    for (auto const& entry : container)
    {
        Corvane::Data::Channels::Guid channel;
        std::ignore = Thrift::Data::ThriftToGuidConverter().To(KeyOf(entry), channel);
        met += buckets[table.bucket(channel)]++;
    }
    return met > MostPerEntry * container.size();
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Wire::Detail
