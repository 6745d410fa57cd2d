#include "Thrift/Data/Channels/FromRecorderState.h"

#include "Domain/CorvaneData/Channels/RecorderState.h"
#include "Thrift/Data/Channels/EnumConverter.h"
#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/Texts.h"
#include "Thrift/Detail/TimeCodes.h"
#include "Thrift/Detail/Widths.h"
#include "generated/RecorderState_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
{

using namespace Detail;

ConversionResult RecorderStateToThriftConverter::To(Corvane::Data::Channels::RecorderState const& source,
                                                    Generated::RecorderState& destination) const noexcept
{
    Clips::ClipToThriftConverter const fromClip;

    TALVO_FLAGGED(destination, serial) = Widened(source.serial);
    TALVO_FLAGGED(destination, channelIndex) = source.channelIndex;
    TALVO_FLAGGED(destination, name) = UntilNul(source.name);
    TALVO_FLAGGED(destination, status) = EnumConverter::ToGeneratedEnum(source.status);
    TALVO_FLAGGED(destination, isFirstTimePointRunning) = source.isFirstTimePointRunning;
    if (IsPresent(source.firstTimePoint)) TALVO_FLAGGED(destination, firstTimePoint) = source.firstTimePoint.position;
    if (IsPresent(source.lastTimePoint)) TALVO_FLAGGED(destination, lastTimePoint) = source.lastTimePoint.position;
    if (IsPresent(source.lastTodTimecode))
        WriteTimeCode(source.lastTodTimecode, TALVO_FLAGGED(destination, lastTodTimecode));
    if (IsPresent(source.lastUserTimecode))
        WriteTimeCode(source.lastUserTimecode, TALVO_FLAGGED(destination, lastUserTimecode));
    if (IsNonZero(source.primaryTimecodeType))
        TALVO_FLAGGED(destination, primaryTimecodeType) =
            Clips::EnumConverter::ToGeneratedEnum(source.primaryTimecodeType);
    TALVO_FLAGGED(destination, remainingCapacity) = Widened(source.remainingCapacity);
    TALVO_FLAGGED(destination, totalCapacity) = Widened(source.totalCapacity);
    if (source.hasRecorderTrain)
    {
        if (auto const result = fromClip.To(source.recorderTrain, destination.recorderTrain); !result.success)
            return Nested(result);
        destination.__isset.recorderTrain = true;
    }
    return Success();
}

ConversionResult RecorderStateToThriftConverter::To(Corvane::Data::Channels::RecorderState&& source,
                                                    Generated::RecorderState& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
