#pragma once

#include "Domain/CorvaneData/OperationStatus.h"
#include "generated/OperationResult_types.h"

/// Converts the results of operations between the domain and the wire. The numbers 2 to 8 differ between the two. The
/// functions can't fail: a value outside the table gives `Success`.
namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::OperationResultConverter
{

/// @{

/// Returns the result of the same name on the other side.
Corvane::Data::OperationResult To(Corvane::Data::Generated::OperationResult::type value) noexcept;
Corvane::Data::Generated::OperationResult::type To(Corvane::Data::OperationResult value) noexcept;

/// @}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::OperationResultConverter
