#pragma once

#include "Domain/CorvaneData/OperationStatus.h"
#include "generated/OperationStatusStatus_types.h"

/// The states of operations between the domain and the wire. No call can fail: a value outside the table gives
/// `NotStarted`.
namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::OperationStatusConverter
{

/// @{

/// The state on the other side, by name.
Corvane::Data::OperationStatus::Status To(Corvane::Data::Generated::OperationStatusStatus::type value) noexcept;
Corvane::Data::Generated::OperationStatusStatus::type To(Corvane::Data::OperationStatus::Status value) noexcept;

/// @}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::OperationStatusConverter
