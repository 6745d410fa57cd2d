#pragma once

#include "records/Pairs.h"

#include "Domain/CorvaneData/Guid.h"
#include "Domain/CorvaneData/Multiviewer/MultiviewerDataOverrides.h"
#include "Domain/CorvaneData/Multiviewer/PlayerDataOverrides.h"
#include "Domain/CorvaneData/OperationStatus.h"
#include "Thrift/CommonRecords.h"

namespace Talvo::Records
{

constexpr auto CommonPairs()
{
    using namespace Corvane::Zelmar::Serialization::Thrift::Data;
    return PairList<Pair<GuidToThriftConverter, ThriftToGuidConverter>,
                    Pair<FromMultiviewerDataOverrides, ToMultiviewerDataOverrides>,
                    Pair<OperationStatusToThriftConverter, ThriftToOperationStatusConverter>,
                    Pair<FromPlayerDataOverrides, ToPlayerDataOverrides>>();
}

} // namespace Talvo::Records
