#pragma once

#include "Domain/CorvaneData/Notification/AnglesGroupCreationEventArgs.h"
#include "Domain/CorvaneData/OperationStatus.h"

#include <cstdint>

namespace Talvo::Corvane::Notification
{

/// Event: an angles group could not be created.
struct AnglesGroupCreationFailedEventArgs : AnglesGroupCreationEventArgs
{
    using AnglesGroupCreationEventArgs::AnglesGroupCreationEventArgs;

    bool operator==(AnglesGroupCreationFailedEventArgs const&) const = default;

    Data::OperationResult result = Data::OperationResult::Unknown;
    std::int16_t internalResult = 0;
};

} // namespace Talvo::Corvane::Notification
