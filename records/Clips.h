#pragma once

#include "records/Pairs.h"

#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Clips/Groups/Angle.h"
#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"
#include "Domain/CorvaneData/Clips/RecordingRange.h"
#include "Domain/CorvaneData/Clips/Train.h"
#include "Thrift/Data/Clips/FromAngle.h"
#include "Thrift/Data/Clips/FromAnglesGroup.h"
#include "Thrift/Data/Clips/FromClip.h"
#include "Thrift/Data/Clips/FromEssence.h"
#include "Thrift/Data/Clips/FromRecordingRange.h"
#include "Thrift/Data/Clips/FromTrain.h"
#include "Thrift/Data/Clips/ToAngle.h"
#include "Thrift/Data/Clips/ToAnglesGroup.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Data/Clips/ToEssence.h"
#include "Thrift/Data/Clips/ToRecordingRange.h"
#include "Thrift/Data/Clips/ToTrain.h"

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
