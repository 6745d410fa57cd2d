#pragma once

#include "Domain/CorvaneData/OperationStatus.h"
#include "generated/OperationResult_types.h"

/// The results of operations between the domain and the wire, whose numbers differ from 2 to 8. No call can fail: a
/// value outside the table gives `Success`.
namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::OperationResultConverter
{

/// @{

/// The result on the other side, by name.
Corvane::Data::OperationResult To(Corvane::Data::Generated::OperationResult::type value) noexcept;
Corvane::Data::Generated::OperationResult::type To(Corvane::Data::OperationResult value) noexcept;

/// @}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::OperationResultConverter
