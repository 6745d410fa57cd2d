#include "Thrift/Data/Clips/ToTrain.h"

#include "Domain/CorvaneData/Clips/Train.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Data/Clips/ToRecordingRange.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "Thrift/Detail/TimeCodes.h"
#include "generated/Train_types.h"

#include <memory>
#include <utility>
#include <vector>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
{

using namespace Detail;
using Corvane::Data::Clips::Clip;
using Corvane::Data::Clips::RecordingRange;
using TimePoints::TimeCode;

ConversionResult ThriftToTrainConverter::ToOrThrow(Generated::Train const& source,
                                                   Corvane::Data::Clips::Train& destination) const
{
    ThriftToClipConverter const toClip;
    ThriftToRecordingRangeConverter const toRange;
    auto const& isset = source.__isset;
    SeenFields seen;

    std::unique_ptr<Clip> trainClip;
    if (seen(isset.trainData))
    {
        trainClip = std::make_unique<Clip>();
        if (auto const result = Read("trainData", toClip, source.trainData, *trainClip); !result.success)
            return Nested(result);
    }

    std::vector<RecordingRange> trainRanges;
    if (seen(isset.recordingRanges))
    {
        // A range that fails stays in the list as an empty one, so that both sides have the same number of ranges.
        AppendAll("recordingRanges", toRange, source.recordingRanges, trainRanges);
    }

    bool const isInMoving = seen(isset.isInMoving) && source.isInMoving;
    bool const isOutMoving = seen(isset.isOutMoving) && source.isOutMoving;
    auto const lastKnownTimeCode = seen(isset.lastKnownTimeCode)
                                       ? ReadTimeCode(source.lastKnownTimeCode).value_or(TimeCode::Empty())
                                       : TimeCode::Empty();

    // The destination is replaced even if no flag is set: after the failure it is empty, not unchanged.
    destination = Corvane::Data::Clips::Train(std::move(trainClip), std::move(trainRanges), isInMoving, isOutMoving,
                                              TimeCode(lastKnownTimeCode));
    return seen.None() ? Failure("Train is empty") : Success();
}

ConversionResult ThriftToTrainConverter::To(Generated::Train const& source,
                                            Corvane::Data::Clips::Train& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToTrainConverter::To(Generated::Train&& source,
                                            Corvane::Data::Clips::Train& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips
