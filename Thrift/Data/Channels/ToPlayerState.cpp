#include "Thrift/Data/Channels/ToPlayerState.h"

#include "Domain/CorvaneData/Channels/PlayerState.h"
#include "Thrift/Data/Boundaries.h"
#include "Thrift/Data/Channels/EnumConverter.h"
#include "Thrift/Data/Channels/ToPlayerClipOnAir.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "Thrift/Detail/Texts.h"
#include "Thrift/Detail/TimeCodes.h"
#include "Thrift/Detail/Widths.h"
#include "generated/PlayerState_types.h"

#include <cstdint>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
{

using namespace Detail;
using EnumConverter::FromGeneratedEnum;

namespace
{

/// Most fields are read regardless of their own flags.
void ReadInfoOnAir(Generated::PlayerInfoOnAir const& source, Corvane::Data::Channels::PlayerState& destination) noexcept
{
    auto const& isset = source.__isset;

    if (isset.playoutConfig) destination.playoutConfig = FromGeneratedEnum(source.playoutConfig);
    destination.onAirStatus = FromGeneratedEnum(source.status);
    destination.onAirMode = FromGeneratedEnum(source.mode);
    if (isset.commonSpeedNumerator && isset.commonSpeedDenominator)
    {
        destination.commonSpeedNumerator = source.commonSpeedNumerator;
        destination.commonSpeedDenominator = source.commonSpeedDenominator;
    }
    if (isset.curVideoSpeedNumerator && isset.curVideoSpeedDenominator)
    {
        destination.curVideoSpeedNumerator = source.curVideoSpeedNumerator;
        destination.curVideoSpeedDenominator = source.curVideoSpeedDenominator;
    }
    destination.audioPgmInstruction = source.audioPgmInstruction;
    destination.audioPgmInstructionDecSpeedD = static_cast<std::uint16_t>(source.audioPgmInstructionDecSpeedD);
    destination.fieldPgm = source.fieldPgm;
    destination.fieldPgmAudio = source.fieldPgmAudio;
    destination.fieldPreview = source.fieldPreview;
    destination.curFieldInProtect = source.curFieldInProtect;
    destination.curFieldOutProtect = source.curFieldOutProtect;
    destination.limitIn = source.limitIn;
    destination.limitOut = source.limitOut;
    destination.limitUserIn = source.limitUserIn;
    destination.limitUserOut = source.limitUserOut;
}

} // namespace

ConversionResult ThriftToPlayerStateConverter::ToOrThrow(Generated::PlayerState const& source,
                                                         Corvane::Data::Channels::PlayerState& destination) const
{
    ThriftToPlayerClipOnAirConverter const toClipOnAir;
    auto const& isset = source.__isset;
    SeenFields seen;

    if (seen(isset.serial)) destination.serial = LowWord(source.serial);
    if (seen(isset.channelIndex)) destination.channelIndex = source.channelIndex;
    if (seen(isset.name)) AssignBounded(destination.name, source.name);
    if (seen(isset.status)) destination.status = FromGeneratedEnum(source.status);
    if (seen(isset.mode)) destination.mode = FromGeneratedEnum(source.mode);
    if (seen(isset.infoOnAir)) ReadInfoOnAir(source.infoOnAir, destination);
    if (seen(isset.pgmOnAir))
    {
        if (auto const result = Read("pgmOnAir", toClipOnAir, source.pgmOnAir, destination.pgmOnAir); !result.success)
            return Nested(result);
    }
    if (seen(isset.previewOnAir))
    {
        if (auto const result = Read("previewOnAir", toClipOnAir, source.previewOnAir, destination.previewOnAir);
            !result.success)
            return Nested(result);
    }
    if (seen(isset.pgmInTimePointOnAir)) destination.pgmInTimePointOnAir = {source.pgmInTimePointOnAir};
    if (seen(isset.pgmShortInTimePointOnAir)) destination.pgmShortInTimePointOnAir = {source.pgmShortInTimePointOnAir};
    if (seen(isset.pgmShortOutTimePointOnAir))
        destination.pgmShortOutTimePointOnAir = {source.pgmShortOutTimePointOnAir};
    if (seen(isset.pgmOutTimePointOnAir)) destination.pgmOutTimePointOnAir = {source.pgmOutTimePointOnAir};
    if (seen(isset.todPgmInTimecodeOnAir))
        AssignGuarded(destination.todPgmInTimecodeOnAir, source.todPgmInTimecodeOnAir);
    if (seen(isset.todPgmShortInTimecodeOnAir))
        AssignGuarded(destination.todPgmShortInTimecodeOnAir, source.todPgmShortInTimecodeOnAir);
    if (seen(isset.todPgmShortOutTimecodeOnAir))
        AssignGuarded(destination.todPgmShortOutTimecodeOnAir, source.todPgmShortOutTimecodeOnAir);
    if (seen(isset.todPgmOutTimecodeOnAir))
        AssignGuarded(destination.todPgmOutTimecodeOnAir, source.todPgmOutTimecodeOnAir);
    if (seen(isset.userPgmInTimecodeOnAir))
        AssignGuarded(destination.userPgmInTimecodeOnAir, source.userPgmInTimecodeOnAir);
    if (seen(isset.userPgmShortInTimecodeOnAir))
        AssignGuarded(destination.userPgmShortInTimecodeOnAir, source.userPgmShortInTimecodeOnAir);
    if (seen(isset.userPgmShortOutTimecodeOnAir))
        AssignGuarded(destination.userPgmShortOutTimecodeOnAir, source.userPgmShortOutTimecodeOnAir);
    if (seen(isset.userPgmOutTimecodeOnAir))
        AssignGuarded(destination.userPgmOutTimecodeOnAir, source.userPgmOutTimecodeOnAir);
    if (seen(isset.globalLoopMode)) destination.globalLoopMode = FromGeneratedEnum(source.globalLoopMode);
    // The boundaries are applied but don't count as seen: a record that holds nothing else fails. A boundary that is
    // rejected still replaces the destination's, with a new one.
    if (isset.inBoundary) destination.inBoundary = ReadBoundary(source.inBoundary);
    if (isset.outBoundary) destination.outBoundary = ReadBoundary(source.outBoundary);

    return seen.None() ? Failure("PlayerState is empty") : Success();
}

ConversionResult ThriftToPlayerStateConverter::To(Generated::PlayerState const& source,
                                                  Corvane::Data::Channels::PlayerState& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToPlayerStateConverter::To(Generated::PlayerState&& source,
                                                  Corvane::Data::Channels::PlayerState& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
