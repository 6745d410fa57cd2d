#pragma once

#include "Domain/CorvaneData/OperationStatus.h"
#include "generated/OperationStatus_types.h"
#include "tests/Thrift/Converters.h"
#include "tests/Thrift/Data/Values.h"

namespace Talvo::Tests
{

inline Corvane::Data::Generated::OperationStatus
WireStatus(Corvane::Data::Generated::OperationStatusStatus::type const value)
{
    Corvane::Data::Generated::OperationStatus status;
    status.status = value;
    status.__isset.status = true;
    return status;
}

/// Returns a wire record with its own flags cleared and its values kept.
template<typename TWire>
TWire WithoutFlags(TWire wire)
{
    if constexpr (requires { wire.__isset; }) wire.__isset = {};
    return wire;
}

} // namespace Talvo::Tests
