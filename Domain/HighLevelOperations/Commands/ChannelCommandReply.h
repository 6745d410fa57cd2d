#pragma once

#include "Domain/HighLevelOperations/Commands/ChannelResult.h"
#include "Domain/HighLevelOperations/Commands/CommandReply.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// The result of a command for each of its channels, of which there are at most twelve.
struct ChannelCommandReply : CommandReply
{
    static constexpr std::size_t MaxResults = 12;

    /// Constructs a reply with default results, none of which counts.
    explicit ChannelCommandReply(Corvane::Data::Guid const& guid)
        : CommandReply(guid)
    {
    }

    ReplyType GetType() const noexcept override { return ReplyType::Channel; }

    /// Whether all fields are equal.
    bool operator==(ChannelCommandReply const& other) const
    {
        return commandGuid == other.commandGuid && results == other.results && resultCount == other.resultCount;
    }

    std::array<ChannelResult, MaxResults> results;
    std::int32_t resultCount = 0; ///< the number of `results` that count
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
