#pragma once

#include "records/Pairs.h"

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Clips/Groups/Angle.h"
#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"
#include "Domain/CorvaneData/Clips/RecordingRange.h"
#include "Domain/CorvaneData/Clips/Train.h"
#include "Thrift/Clips.h"

namespace Talvo::Records
{

constexpr auto ClipPairs()
{
    using namespace Corvane::Zelmar::Serialization::Thrift::Data::Clips;
    return PairList<Pair<AngleToThriftConverter, ThriftToAngleConverter>,
                    Pair<AnglesGroupToThriftConverter, ThriftToAnglesGroupConverter>,
                    Pair<ClipToThriftConverter, ThriftToClipConverter>,
                    Pair<EssenceToThriftConverter, ThriftToEssenceConverter>,
                    Pair<RecordingRangeToThriftConverter, ThriftToRecordingRangeConverter>,
                    Pair<TrainToThriftConverter, ThriftToTrainConverter>>();
}

} // namespace Talvo::Records
