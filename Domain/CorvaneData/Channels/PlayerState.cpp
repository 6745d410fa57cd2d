#include "Domain/CorvaneData/Channels/PlayerState.h"

namespace Talvo::Corvane::Data::Channels
{

PlayerState::PlayerState() noexcept = default;

Guid::Type PlayerState::ChannelType() const noexcept
{
    return Guid::Type::ChannelGuidTypePlayer;
}

} // namespace Talvo::Corvane::Data::Channels
