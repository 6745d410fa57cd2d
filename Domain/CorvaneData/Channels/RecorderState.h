#pragma once

#include "Domain/CorvaneData/Channels/ChannelState.h"
#include "Domain/CorvaneData/Channels/Enums.h"
#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Clips/Enums.h"
#include "TimePoints/TimeCode.h"
#include "TimePoints/TimePoint.h"

#include <cstdint>

namespace Talvo::Corvane::Data::Channels
{

/// A full snapshot of a recorder channel. In a new one, numbers and enumerations are 0, texts, time points and time
/// codes are empty, and no train is being recorded.
class RecorderState : public ChannelState
{
public:
    RecorderState() noexcept;

    Guid::Type ChannelType() const noexcept override;

    bool operator==(RecorderState const&) const = default;

    RecorderModeStatus status{};
    bool isFirstTimePointRunning = false;
    TimePoints::TimePoint firstTimePoint;
    TimePoints::TimePoint lastTimePoint;
    TimePoints::TimeCode lastTodTimecode;
    TimePoints::TimeCode lastUserTimecode;
    Clips::PrimaryTimecode primaryTimecodeType{};
    bool hasRecorderTrain = false;       ///< whether `recorderTrain` is valid
    std::uint32_t remainingCapacity = 0; ///< never above `totalCapacity` once set from the wire
    std::uint32_t totalCapacity = 0;
    Clips::Clip recorderTrain; ///< the clip being recorded
};

} // namespace Talvo::Corvane::Data::Channels
