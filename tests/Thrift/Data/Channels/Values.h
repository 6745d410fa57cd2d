#pragma once

#include "Domain/CorvaneData/Channels/PlayerState.h"
#include "Domain/CorvaneData/Channels/RecorderState.h"
#include "tests/Thrift/Data/Clips/Values.h"

namespace Talvo::Tests
{

/// Returns a full clip that is unchanged by a round trip inside another record. That reads it into a new clip, which is
/// Pal and ignores `isLegacyTimecodeDrop`.
inline Corvane::Data::Clips::Clip NestedClip()
{
    auto clip = FullClip();
    clip.isLegacyTimecodeDrop = false;
    return clip;
}

inline Corvane::Data::Channels::PlayerClipOnAir FullClipOnAir()
{
    return {NestedClip(),
            true,
            {7},
            ParsedTimeCode("2024-06-15T18:30:05:10@50"),
            ParsedTimeCode("2000-01-01T10:00:05;10@30")};
}

/// Returns a player in which no field has its default and no two fields of one type have equal values.
inline Corvane::Data::Channels::PlayerState FullPlayerState()
{
    using namespace Corvane::Data::Channels;
    PlayerState state;
    state.serial = 0xFFFFFFFE;
    state.channelIndex = -2;
    SetText(state.name, "A name of 24 bytes, full");
    state.status = PlayerModeStatus::Playing;
    state.mode = PlayerModeType::PlaylistDiffusionNoSplit;
    state.playoutConfig = PlayoutConfig::TimelineDiffusionCut;
    state.onAirStatus = PlayerModeStatus::Cueing;
    state.onAirMode = PlayerModeType::ClipEdit;
    state.commonSpeedNumerator = -1;
    state.commonSpeedDenominator = 2;
    state.curVideoSpeedNumerator = 3;
    state.curVideoSpeedDenominator = 4;
    state.audioPgmInstruction = -17;
    state.audioPgmInstructionDecSpeedD = 0xFFFE;
    state.fieldPgm = 0x7FFFFFFFFFFFFFFF;
    state.fieldPgmAudio = -1;
    state.fieldPreview = 2;
    state.curFieldInProtect = 3;
    state.curFieldOutProtect = 4;
    state.limitIn = 5;
    state.limitOut = 6;
    state.limitUserIn = 7;
    state.limitUserOut = 8;
    state.pgmOnAir = FullClipOnAir();
    state.previewOnAir = FullClipOnAir();
    state.previewOnAir.curTimePointOnAir = {8};
    state.pgmInTimePointOnAir = {11};
    state.pgmShortInTimePointOnAir = {12};
    state.pgmShortOutTimePointOnAir = {13};
    state.pgmOutTimePointOnAir = {14};
    state.todPgmInTimecodeOnAir = ParsedTimeCode("2024-06-15T18:00:00:01@50");
    state.todPgmShortInTimecodeOnAir = ParsedTimeCode("2024-06-15T18:00:00:02@50");
    state.todPgmShortOutTimecodeOnAir = ParsedTimeCode("2024-06-15T18:00:00:03@50");
    state.todPgmOutTimecodeOnAir = ParsedTimeCode("2024-06-15T18:00:00:04@50");
    state.userPgmInTimecodeOnAir = ParsedTimeCode("2024-06-15T18:00:00:05@25");
    state.userPgmShortInTimecodeOnAir = ParsedTimeCode("2024-06-15T18:00:00:06@25");
    state.userPgmShortOutTimecodeOnAir = ParsedTimeCode("2024-06-15T18:00:00:07@25");
    state.userPgmOutTimecodeOnAir = ParsedTimeCode("2024-06-15T18:00:00:08@25");
    state.globalLoopMode = PlayingLoopMode::Bounce;
    state.inBoundary = Boundary::AbsoluteBoundary({-21});
    state.outBoundary = Boundary::RelativeBoundary(Boundary::RelativeTo::RelativeToOppositeLoadBoundary, 0xFFFFFFFD);
    return state;
}

/// Returns a recorder in which no field has its default and no two fields of one type have equal values.
inline Corvane::Data::Channels::RecorderState FullRecorderState()
{
    using namespace Corvane::Data::Channels;
    RecorderState state;
    state.serial = 0xFFFFFFFE;
    state.channelIndex = -2;
    SetText(state.name, "A name of 24 bytes, full");
    state.status = RecorderModeStatus::Pause;
    state.isFirstTimePointRunning = true;
    state.firstTimePoint = {-1};
    state.lastTimePoint = {2};
    state.lastTodTimecode = ParsedTimeCode("2024-06-15T18:00:00:01@50");
    state.lastUserTimecode = ParsedTimeCode("2024-06-15T18:00:00;02@30");
    state.primaryTimecodeType = Corvane::Data::Clips::PrimaryTimecode::User;
    state.hasRecorderTrain = true;
    state.remainingCapacity = 0x80000000;
    state.totalCapacity = 0xFFFFFFFF;
    state.recorderTrain = NestedClip();
    return state;
}

} // namespace Talvo::Tests
