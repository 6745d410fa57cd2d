#pragma once

#include "Domain/CorvaneData/Channels/Boundary.h"
#include "Domain/CorvaneData/Channels/ChannelState.h"
#include "Domain/CorvaneData/Channels/Enums.h"
#include "Domain/CorvaneData/Channels/PlayerClipOnAir.h"
#include "TimePoints/TimeCode.h"
#include "TimePoints/TimePoint.h"

#include <cstdint>

namespace Talvo::Corvane::Data::Channels
{

/// A full snapshot of a player channel. In a new one, numbers and enumerations are 0, texts, time points and time codes
/// are empty, and no clip is on air.
class PlayerState : public ChannelState
{
public:
    PlayerState() noexcept;

    Guid::Type ChannelType() const noexcept override;

    bool operator==(PlayerState const&) const = default;

    PlayerModeStatus status{};
    PlayerModeType mode{};

    // What is on air. On the wire, the fields from here to `limitUserOut` are a separate record.
    PlayoutConfig playoutConfig{};
    PlayerModeStatus onAirStatus{};
    PlayerModeType onAirMode{};
    std::int32_t commonSpeedNumerator = 0;
    std::int32_t commonSpeedDenominator = 0;
    std::int32_t curVideoSpeedNumerator = 0;
    std::int32_t curVideoSpeedDenominator = 0;
    std::int32_t audioPgmInstruction = 0;
    std::uint16_t audioPgmInstructionDecSpeedD = 0;
    std::int64_t fieldPgm = 0;
    std::int64_t fieldPgmAudio = 0;
    std::int64_t fieldPreview = 0;
    std::int64_t curFieldInProtect = 0;
    std::int64_t curFieldOutProtect = 0;
    std::int64_t limitIn = 0;
    std::int64_t limitOut = 0;
    std::int64_t limitUserIn = 0;
    std::int64_t limitUserOut = 0;

    PlayerClipOnAir pgmOnAir;
    PlayerClipOnAir previewOnAir;
    TimePoints::TimePoint pgmInTimePointOnAir;
    TimePoints::TimePoint pgmShortInTimePointOnAir;
    TimePoints::TimePoint pgmShortOutTimePointOnAir;
    TimePoints::TimePoint pgmOutTimePointOnAir;
    TimePoints::TimeCode todPgmInTimecodeOnAir;
    TimePoints::TimeCode todPgmShortInTimecodeOnAir;
    TimePoints::TimeCode todPgmShortOutTimecodeOnAir;
    TimePoints::TimeCode todPgmOutTimecodeOnAir;
    TimePoints::TimeCode userPgmInTimecodeOnAir;
    TimePoints::TimeCode userPgmShortInTimecodeOnAir;
    TimePoints::TimeCode userPgmShortOutTimecodeOnAir;
    TimePoints::TimeCode userPgmOutTimecodeOnAir;
    PlayingLoopMode globalLoopMode{};
    Boundary inBoundary;
    Boundary outBoundary;
};

} // namespace Talvo::Corvane::Data::Channels
