#pragma once

#include "tools/RecordType.h"

#include "Domain/CorvaneData/Guid.h"
#include "Domain/CorvaneData/Multiviewer/MultiviewerDataOverrides.h"
#include "Domain/CorvaneData/Multiviewer/PlayerDataOverrides.h"
#include "Domain/CorvaneData/OperationStatus.h"
#include "Thrift/Data/FromGuid.h"
#include "Thrift/Data/FromMultiviewerDataOverrides.h"
#include "Thrift/Data/FromOperationStatus.h"
#include "Thrift/Data/FromPlayerDataOverrides.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Data/ToMultiviewerDataOverrides.h"
#include "Thrift/Data/ToOperationStatus.h"
#include "Thrift/Data/ToPlayerDataOverrides.h"

#include "generated/Guid_types.h"
#include "generated/MultiviewerDataOverrides_types.h"
#include "generated/OperationStatus_types.h"
#include "generated/PlayerDataOverrides_types.h"

#include <cstdint>

#include <tuple>

namespace Talvo::Tools
{

/// With the wire's number of players, since conversion can't change it.
inline Corvane::Multiviewer::MultiviewerDataOverrides
NewMultiviewerDataOverrides(Corvane::Data::Generated::MultiviewerDataOverrides const& wire)
{
    return Corvane::Multiviewer::MultiviewerDataOverrides(static_cast<std::uint32_t>(wire.playersData.size()));
}

constexpr auto CommonRecords()
{
    namespace Generated = Corvane::Data::Generated;
    using namespace Corvane::Zelmar::Serialization::Thrift::Data;

    return std::tuple{
        Record<Generated::Guid, GuidToThriftConverter, ThriftToGuidConverter, Corvane::Data::Guid>("Guid"),
        Record<Generated::MultiviewerDataOverrides, FromMultiviewerDataOverrides, ToMultiviewerDataOverrides,
               Corvane::Multiviewer::MultiviewerDataOverrides, &NewMultiviewerDataOverrides>(
            "MultiviewerDataOverrides"),
        Record<Generated::OperationStatus, OperationStatusToThriftConverter, ThriftToOperationStatusConverter,
               Corvane::Data::OperationStatus>("OperationStatus"),
        Record<Generated::PlayerDataOverrides, FromPlayerDataOverrides, ToPlayerDataOverrides,
               Corvane::Multiviewer::PlayerDataOverrides>("PlayerDataOverrides"),
    };
}

} // namespace Talvo::Tools
