#include "Thrift/Data/ToOperationStatus.h"

#include "Domain/CorvaneData/OperationStatus.h"
#include "Thrift/Data/OperationResultConverter.h"
#include "Thrift/Data/OperationStatusConverter.h"
#include "Thrift/Detail/Results.h"
#include "generated/OperationStatus_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
{

using namespace Detail;
using Corvane::Data::OperationResult;
using Corvane::Data::OperationStatus;

namespace
{

OperationStatus FromStatus(OperationStatus::Status const status) noexcept
{
    switch (status)
    {
    case OperationStatus::Status::Succeeded:
        return {status, OperationResult::Success};
    case OperationStatus::Status::Failed:
        return {status, OperationResult::DefaultError};
    default:
        return {status, OperationResult::Unknown};
    }
}

OperationStatus FromResult(OperationResult const result) noexcept
{
    switch (result)
    {
    case OperationResult::Success:
        return {OperationStatus::Status::Succeeded, result};
    // Not Failed: an unknown result alone means that nothing was started, although a Failed status with that result is
    // written as the same record. Peers rely on this.
    case OperationResult::Unknown:
        return {OperationStatus::Status::NotStarted, result};
    default:
        return {OperationStatus::Status::Failed, result};
    }
}

} // namespace

ConversionResult ThriftToOperationStatusConverter::To(Corvane::Data::Generated::OperationStatus const& source,
                                                      OperationStatus& destination) const noexcept
{
    if (source.__isset.status)
        destination = FromStatus(OperationStatusConverter::To(source.status));
    else if (source.__isset.result)
        destination = FromResult(OperationResultConverter::To(source.result));
    return Success();
}

ConversionResult ThriftToOperationStatusConverter::To(Corvane::Data::Generated::OperationStatus&& source,
                                                      OperationStatus& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data
