#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"

#include <array>
#include <cstdint>

namespace Talvo::Corvane::Data::Channels
{

/// The common fields of the states of player and recorder channels.
class ChannelState
{
public:
    virtual ~ChannelState() = default;

    /// Player or recorder, depending on the class.
    virtual Guid::Type ChannelType() const noexcept = 0;

    bool operator==(ChannelState const&) const = default;

    std::int32_t channelIndex = 0; ///< index of the channel on its server
    std::uint32_t serial = 0;      ///< serial number of the server's machine
    std::array<char, 25> name{};   ///< up to 24 characters, then zero

protected:
    ChannelState() = default;
    ChannelState(ChannelState const&) = default;
    ChannelState& operator=(ChannelState const&) = default;
};

} // namespace Talvo::Corvane::Data::Channels
