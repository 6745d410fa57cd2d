#include "Thrift/Data/Channels/ToRecorderState.h"

#include "Domain/CorvaneData/Channels/RecorderState.h"
#include "Thrift/Data/Channels/EnumConverter.h"
#include "Thrift/Data/Clips/EnumConverter.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "Thrift/Detail/Texts.h"
#include "Thrift/Detail/TimeCodes.h"
#include "Thrift/Detail/Widths.h"
#include "generated/RecorderState_types.h"

#include <algorithm>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
{

using namespace Detail;

ConversionResult ThriftToRecorderStateConverter::ToOrThrow(Generated::RecorderState const& source,
                                                           Corvane::Data::Channels::RecorderState& destination) const
{
    Clips::ThriftToClipConverter const toClip;
    auto const& isset = source.__isset;
    SeenFields seen;

    if (seen(isset.serial)) destination.serial = LowWord(source.serial);
    if (seen(isset.channelIndex)) destination.channelIndex = source.channelIndex;
    if (seen(isset.name)) AssignBounded(destination.name, source.name);
    if (seen(isset.status)) destination.status = EnumConverter::FromGeneratedEnum(source.status);
    if (seen(isset.isFirstTimePointRunning)) destination.isFirstTimePointRunning = source.isFirstTimePointRunning;
    if (seen(isset.firstTimePoint)) destination.firstTimePoint = {source.firstTimePoint};
    if (seen(isset.lastTimePoint)) destination.lastTimePoint = {source.lastTimePoint};
    if (seen(isset.lastTodTimecode)) AssignGuarded(destination.lastTodTimecode, source.lastTodTimecode);
    if (seen(isset.lastUserTimecode)) AssignGuarded(destination.lastUserTimecode, source.lastUserTimecode);
    if (seen(isset.primaryTimecodeType))
        destination.primaryTimecodeType = Clips::EnumConverter::FromGeneratedEnum(source.primaryTimecodeType);
    // In this order, so that the total decides if a record has both capacities.
    if (seen(isset.remainingCapacity))
    {
        destination.remainingCapacity = LowWord(source.remainingCapacity);
        destination.totalCapacity = std::max(destination.totalCapacity, destination.remainingCapacity);
    }
    if (seen(isset.totalCapacity))
    {
        destination.totalCapacity = LowWord(source.totalCapacity);
        destination.remainingCapacity = std::min(destination.remainingCapacity, destination.totalCapacity);
    }
    if (seen(isset.recorderTrain))
    {
        Corvane::Data::Clips::Clip clip;
        if (auto const result = Read("recorderTrain", toClip, source.recorderTrain, clip); !result.success)
            return Nested(result);
        destination.recorderTrain = clip;
        destination.hasRecorderTrain = true;
    }
    return seen.None() ? Failure("RecorderState is empty") : Success();
}

ConversionResult ThriftToRecorderStateConverter::To(Generated::RecorderState const& source,
                                                    Corvane::Data::Channels::RecorderState& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToRecorderStateConverter::To(Generated::RecorderState&& source,
                                                    Corvane::Data::Channels::RecorderState& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels
