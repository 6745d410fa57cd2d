#include "tools/RecordTypes.h"

#include "Domain/CorvaneData/Guid.h"
#include "Domain/CorvaneData/OperationStatus.h"
#include "Thrift/Data/FromGuid.h"
#include "Thrift/Data/FromOperationStatus.h"
#include "Thrift/Data/ToGuid.h"
#include "Thrift/Data/ToOperationStatus.h"

#include "generated/Guid_types.h"
#include "generated/MultiviewerDataOverrides_types.h"
#include "generated/OperationStatus_types.h"
#include "generated/PlayerDataOverrides_types.h"

namespace Talvo::Tools
{

std::vector<RecordType> CommonRecords()
{
    namespace Generated = Corvane::Data::Generated;
    using namespace Corvane::Zelmar::Serialization::Thrift::Data;

    return {
        Record<Generated::Guid, GuidToThriftConverter, ThriftToGuidConverter, Corvane::Data::Guid>("Guid"),
        Record<Generated::MultiviewerDataOverrides>("MultiviewerDataOverrides"),
        Record<Generated::OperationStatus, OperationStatusToThriftConverter, ThriftToOperationStatusConverter,
               Corvane::Data::OperationStatus>("OperationStatus"),
        Record<Generated::PlayerDataOverrides>("PlayerDataOverrides"),
    };
}

} // namespace Talvo::Tools
