#include "Thrift/Data/FromOperationStatus.h"

#include "Domain/CorvaneData/OperationStatus.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Data/OperationStatusConverter.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/OperationStatus_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
{

using namespace Detail;
using Corvane::Data::OperationStatus;

ConversionResult
OperationStatusToThriftConverter::To(OperationStatus const& source,
                                     Corvane::Data::Generated::OperationStatus& destination) const noexcept
{
    // Exactly one field is written. The other keeps its value and flag, in a reused destination too.
    if (source.status == OperationStatus::Status::Failed)
        TALVO_FLAGGED(destination, result) = OperationResultConverter::To(source.result);
    else
        TALVO_FLAGGED(destination, status) = OperationStatusConverter::To(source.status);
    return Success();
}

ConversionResult
OperationStatusToThriftConverter::To(OperationStatus&& source,
                                     Corvane::Data::Generated::OperationStatus& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
