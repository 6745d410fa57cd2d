#include "Domain/CorvaneData/Channels/RecorderState.h"

namespace Talvo::Corvane::Data::Channels
{

RecorderState::RecorderState() noexcept = default;

Guid::Type RecorderState::ChannelType() const noexcept
{
    return Guid::Type::ChannelGuidTypeRecorder;
}

} // namespace Talvo::Corvane::Data::Channels
