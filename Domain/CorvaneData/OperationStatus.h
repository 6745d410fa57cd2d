#pragma once

#include <cstdint>

namespace Talvo::Corvane::Data
{

/// Outcome of an operation. The wire uses different numbers for the same names.
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

/// The progress and result of an operation. A new one has not started, and its result is unknown.
struct OperationStatus
{
    /// The progress of the operation.
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
