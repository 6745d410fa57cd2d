#pragma once

#include "Domain/CorvaneData/OperationStatus.h"
#include "generated/OperationStatusStatus_types.h"

/// Converts the states of operations between the domain and the wire. The functions can't fail: a value outside the
/// table gives `NotStarted`.
namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::OperationStatusConverter
{

/// @{

/// Returns the state of the same name on the other side.
Corvane::Data::OperationStatus::Status To(Corvane::Data::Generated::OperationStatusStatus::type value) noexcept;
Corvane::Data::Generated::OperationStatusStatus::type To(Corvane::Data::OperationStatus::Status value) noexcept;

/// @}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::OperationStatusConverter
