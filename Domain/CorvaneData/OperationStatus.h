#pragma once

#include <cstdint>

namespace Talvo::Corvane::Data
{

/// Outcome of an operation. The numbers are this enumeration's own; the wire numbers the same names differently.
enum class OperationResult : std::int32_t
{
    Success = 0,
    InvalidParameter = 1,
    ResourceNotFound = 2,
    ResourceNotReadable = 3,
    ResourceUnavailable = 4,
    ProtectedResource = 5,
    UsedResource = 6,
    TemporaryError = 7,
    InvalidBound = 8,
    NotSupported = 9,
    DefaultError = 10,
    Unknown = 11
};

/// How far an operation has come, and with which result. A new one has not started and its result is unknown.
struct OperationStatus
{
    /// How far the operation has come.
    enum class Status : std::int32_t
    {
        NotStarted = 0,
        Pending = 1,
        Succeeded = 2,
        Failed = 3
    };

    Status status = Status::NotStarted;
    OperationResult result = OperationResult::Unknown;

    bool operator==(OperationStatus const&) const = default;
};

} // namespace Talvo::Corvane::Data
