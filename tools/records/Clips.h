#pragma once

#include "tools/RecordType.h"

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

#include "generated/Angle_types.h"
#include "generated/AnglesGroup_types.h"
#include "generated/Clip_types.h"
#include "generated/Essences_types.h"
#include "generated/RecordingRange_types.h"
#include "generated/Train_types.h"

#include <tuple>

namespace Talvo::Tools
{

inline Corvane::Data::Clips::Groups::AnglesGroup
NewAnglesGroup(Corvane::Data::Clips::Groups::Generated::AnglesGroup const&)
{
    return Corvane::Data::Clips::Groups::AnglesGroup(Corvane::Data::Clips::Groups::Guid());
}

inline Corvane::Data::Clips::Train
NewTrain(Corvane::Zelmar::Serialization::Thrift::Data::Clips::Generated::Train const&)
{
    return Corvane::Data::Clips::Train(nullptr, {}, false, false, TimePoints::TimeCode());
}

constexpr auto GroupRecords()
{
    namespace Generated = Corvane::Data::Clips::Groups::Generated;
    using namespace Corvane::Zelmar::Serialization::Thrift::Data::Clips;

    return std::tuple{
        Record<Generated::Angle, AngleToThriftConverter, ThriftToAngleConverter, Corvane::Data::Clips::Groups::Angle>(
            "Angle"),
        Record<Generated::AnglesGroup, AnglesGroupToThriftConverter, ThriftToAnglesGroupConverter,
               Corvane::Data::Clips::Groups::AnglesGroup, &NewAnglesGroup>("AnglesGroup"),
        Record<Generated::AnglesGroupItem>("AnglesGroupItem"),
    };
}

constexpr auto ClipRecords()
{
    using namespace Corvane::Zelmar::Serialization::Thrift::Data::Clips;

    return std::tuple{
        Record<Generated::AsciiOrUtf16String>("AsciiOrUtf16String"),
        Record<Generated::Clip, ClipToThriftConverter, ThriftToClipConverter, Corvane::Data::Clips::Clip>("Clip"),
        Record<Generated::Essence, EssenceToThriftConverter, ThriftToEssenceConverter,
               Corvane::Data::Clips::Clip::Essence>("Essence"),
        Record<Generated::RecordingRange, RecordingRangeToThriftConverter, ThriftToRecordingRangeConverter,
               Corvane::Data::Clips::RecordingRange>("RecordingRange"),
        Record<Generated::Train, TrainToThriftConverter, ThriftToTrainConverter, Corvane::Data::Clips::Train,
               &NewTrain>("Train"),
    };
}

} // namespace Talvo::Tools
