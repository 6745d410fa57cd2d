#include "Thrift/Data/Channels/FromPlayerState.h"

#include "Domain/CorvaneData/Channels/PlayerState.h"
#include "Thrift/Data/Boundaries.h"
#include "Thrift/Data/Channels/EnumConverter.h"
#include "Thrift/Data/Channels/FromPlayerClipOnAir.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Texts.h"
#include "Thrift/Detail/TimeCodes.h"
#include "Thrift/Detail/Widths.h"
#include "generated/PlayerState_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
{

using namespace Detail;
using EnumConverter::ToGeneratedEnum;

namespace
{

void SendInfoOnAir(Corvane::Data::Channels::PlayerState const& source, Generated::PlayerInfoOnAir& destination)
{
    if (IsNonZero(source.playoutConfig))
        TALVO_FLAGGED(destination, playoutConfig) = ToGeneratedEnum(source.playoutConfig);
    TALVO_FLAGGED(destination, status) = ToGeneratedEnum(source.onAirStatus);
    TALVO_FLAGGED(destination, mode) = ToGeneratedEnum(source.onAirMode);
    // A speed is written as a pair, or not at all.
    if (source.commonSpeedNumerator != 0 && source.commonSpeedDenominator != 0)
    {
        TALVO_FLAGGED(destination, commonSpeedNumerator) = source.commonSpeedNumerator;
        TALVO_FLAGGED(destination, commonSpeedDenominator) = source.commonSpeedDenominator;
    }
    if (source.curVideoSpeedNumerator != 0 && source.curVideoSpeedDenominator != 0)
    {
        TALVO_FLAGGED(destination, curVideoSpeedNumerator) = source.curVideoSpeedNumerator;
        TALVO_FLAGGED(destination, curVideoSpeedDenominator) = source.curVideoSpeedDenominator;
    }
    TALVO_FLAGGED(destination, audioPgmInstruction) = source.audioPgmInstruction;
    TALVO_FLAGGED(destination, audioPgmInstructionDecSpeedD) = source.audioPgmInstructionDecSpeedD;
    TALVO_FLAGGED(destination, fieldPgm) = source.fieldPgm;
    TALVO_FLAGGED(destination, fieldPgmAudio) = source.fieldPgmAudio;
    TALVO_FLAGGED(destination, fieldPreview) = source.fieldPreview;
    TALVO_FLAGGED(destination, curFieldInProtect) = source.curFieldInProtect;
    TALVO_FLAGGED(destination, curFieldOutProtect) = source.curFieldOutProtect;
    TALVO_FLAGGED(destination, limitIn) = source.limitIn;
    TALVO_FLAGGED(destination, limitOut) = source.limitOut;
    TALVO_FLAGGED(destination, limitUserIn) = source.limitUserIn;
    TALVO_FLAGGED(destination, limitUserOut) = source.limitUserOut;
}

} // namespace

ConversionResult PlayerStateToThriftConverter::To(Corvane::Data::Channels::PlayerState const& source,
                                                  Generated::PlayerState& destination) const noexcept
{
    PlayerClipOnAirToThriftConverter const fromClipOnAir;

    TALVO_FLAGGED(destination, serial) = Widened(source.serial);
    TALVO_FLAGGED(destination, channelIndex) = source.channelIndex;
    TALVO_FLAGGED(destination, name) = UntilNul(source.name);
    TALVO_FLAGGED(destination, status) = ToGeneratedEnum(source.status);
    TALVO_FLAGGED(destination, mode) = ToGeneratedEnum(source.mode);
    SendInfoOnAir(source, TALVO_FLAGGED(destination, infoOnAir));
    if (auto const result = fromClipOnAir.To(source.pgmOnAir, destination.pgmOnAir); !result.success)
        return Nested(result);
    destination.__isset.pgmOnAir = true;
    if (auto const result = fromClipOnAir.To(source.previewOnAir, destination.previewOnAir); !result.success)
        return Nested(result);
    destination.__isset.previewOnAir = true;
    if (IsPresent(source.pgmInTimePointOnAir))
        TALVO_FLAGGED(destination, pgmInTimePointOnAir) = source.pgmInTimePointOnAir.position;
    if (IsPresent(source.pgmShortInTimePointOnAir))
        TALVO_FLAGGED(destination, pgmShortInTimePointOnAir) = source.pgmShortInTimePointOnAir.position;
    if (IsPresent(source.pgmShortOutTimePointOnAir))
        TALVO_FLAGGED(destination, pgmShortOutTimePointOnAir) = source.pgmShortOutTimePointOnAir.position;
    if (IsPresent(source.pgmOutTimePointOnAir))
        TALVO_FLAGGED(destination, pgmOutTimePointOnAir) = source.pgmOutTimePointOnAir.position;
    if (IsPresent(source.todPgmInTimecodeOnAir))
        WriteTimeCode(source.todPgmInTimecodeOnAir, TALVO_FLAGGED(destination, todPgmInTimecodeOnAir));
    if (IsPresent(source.todPgmShortInTimecodeOnAir))
        WriteTimeCode(source.todPgmShortInTimecodeOnAir, TALVO_FLAGGED(destination, todPgmShortInTimecodeOnAir));
    if (IsPresent(source.todPgmShortOutTimecodeOnAir))
        WriteTimeCode(source.todPgmShortOutTimecodeOnAir, TALVO_FLAGGED(destination, todPgmShortOutTimecodeOnAir));
    if (IsPresent(source.todPgmOutTimecodeOnAir))
        WriteTimeCode(source.todPgmOutTimecodeOnAir, TALVO_FLAGGED(destination, todPgmOutTimecodeOnAir));
    if (IsPresent(source.userPgmInTimecodeOnAir))
        WriteTimeCode(source.userPgmInTimecodeOnAir, TALVO_FLAGGED(destination, userPgmInTimecodeOnAir));
    if (IsPresent(source.userPgmShortInTimecodeOnAir))
        WriteTimeCode(source.userPgmShortInTimecodeOnAir, TALVO_FLAGGED(destination, userPgmShortInTimecodeOnAir));
    if (IsPresent(source.userPgmShortOutTimecodeOnAir))
        WriteTimeCode(source.userPgmShortOutTimecodeOnAir, TALVO_FLAGGED(destination, userPgmShortOutTimecodeOnAir));
    if (IsPresent(source.userPgmOutTimecodeOnAir))
        WriteTimeCode(source.userPgmOutTimecodeOnAir, TALVO_FLAGGED(destination, userPgmOutTimecodeOnAir));
    if (IsNonZero(source.globalLoopMode))
        TALVO_FLAGGED(destination, globalLoopMode) = ToGeneratedEnum(source.globalLoopMode);
    SendBoundary(source.inBoundary, TALVO_FLAGGED(destination, inBoundary));
    SendBoundary(source.outBoundary, TALVO_FLAGGED(destination, outBoundary));
    return Success();
}

ConversionResult PlayerStateToThriftConverter::To(Corvane::Data::Channels::PlayerState&& source,
                                                  Generated::PlayerState& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
