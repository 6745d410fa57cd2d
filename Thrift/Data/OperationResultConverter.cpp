#include "Thrift/Data/OperationResultConverter.h"

#include "Thrift/EnumAssociation.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::OperationResultConverter
{

namespace Generated = Corvane::Data::Generated;
using Corvane::Data::OperationResult;

namespace
{

constexpr EnumAssociation<OperationResult, Generated::OperationResult::type> operationResult{
    {OperationResult::Success, Generated::OperationResult::Success},
    {OperationResult::InvalidParameter, Generated::OperationResult::InvalidParameter},
    {OperationResult::InvalidBound, Generated::OperationResult::InvalidBound},
    {OperationResult::ResourceNotFound, Generated::OperationResult::ResourceNotFound},
    {OperationResult::ResourceNotReadable, Generated::OperationResult::ResourceNotReadable},
    {OperationResult::ResourceUnavailable, Generated::OperationResult::ResourceUnavailable},
    {OperationResult::ProtectedResource, Generated::OperationResult::ProtectedResource},
    {OperationResult::UsedResource, Generated::OperationResult::UsedResource},
    {OperationResult::TemporaryError, Generated::OperationResult::TemporaryError},
    {OperationResult::NotSupported, Generated::OperationResult::NotSupported},
    {OperationResult::DefaultError, Generated::OperationResult::DefaultError},
    {OperationResult::Unknown, Generated::OperationResult::Unknown},
};

} // namespace

OperationResult To(Generated::OperationResult::type const value) noexcept
{
    return operationResult.FromGeneratedEnum(value);
}

Generated::OperationResult::type To(OperationResult const value) noexcept
{
    return operationResult.ToGeneratedEnum(value);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::OperationResultConverter
