#include "Thrift/Data/OperationStatusConverter.h"

#include "Thrift/EnumAssociation.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::OperationStatusConverter
{

namespace Generated = Corvane::Data::Generated;
using Corvane::Data::OperationStatus;

namespace
{

constexpr EnumAssociation<OperationStatus::Status, Generated::OperationStatusStatus::type> operationResult{
    {OperationStatus::Status::NotStarted, Generated::OperationStatusStatus::NotStarted},
    {OperationStatus::Status::Pending, Generated::OperationStatusStatus::Pending},
    {OperationStatus::Status::Succeeded, Generated::OperationStatusStatus::Succeeded},
    {OperationStatus::Status::Failed, Generated::OperationStatusStatus::Failed},
};

} // namespace

OperationStatus::Status To(Generated::OperationStatusStatus::type const value) noexcept
{
    return operationResult.FromGeneratedEnum(value);
}

Generated::OperationStatusStatus::type To(OperationStatus::Status const value) noexcept
{
    return operationResult.ToGeneratedEnum(value);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::OperationStatusConverter
