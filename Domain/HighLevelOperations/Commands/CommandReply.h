#pragma once

#include "Domain/CorvaneData/Guid.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{

/// The kinds of replies.
enum class ReplyType : std::int32_t
{
    Unknown = 0,
    Success = 1,
    Failure = 2,
    Clip = 3,
    AnglesGroup = 4,
    Playlist = 5,
    Channel = 6,
    GetChannels = 7,
    GetClips = 8,
    GetTrains = 9,
    GetAnglesGroups = 10,
    GetPlaylists = 11,
    GetServers = 12,
    GetMultiviewerData = 13
};

/// The reply of the server to a command.
///
/// It has no comparison, because a derived class that inherited one would be compared without its own fields. A derived
/// class compares all its fields, or has no comparison.
struct CommandReply
{
    /// Constructs a reply to the command Guid::Empty().
    CommandReply() noexcept = default;

    /// Constructs a reply to the command with that identifier.
    explicit CommandReply(Corvane::Data::Guid const& guid) noexcept
        : commandGuid(guid)
    {
    }

    CommandReply(CommandReply const&) = default;
    CommandReply(CommandReply&&) = default;
    CommandReply& operator=(CommandReply const&) = default;
    CommandReply& operator=(CommandReply&&) = default;
    virtual ~CommandReply();

    /// The kind of the reply, fixed for each class.
    virtual ReplyType GetType() const noexcept = 0;

    Corvane::Data::Guid commandGuid; ///< the command that this replies to
};

} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
