#pragma once

#include "Domain/CorvaneData/Channels/Guid.h"
#include "Domain/CorvaneData/Clips/RecordingRange.h"
#include "Domain/CorvaneData/Notification/ClipStatusEventArgs.h"

#include <vector>

namespace Talvo::Corvane::Notification
{

/// Event: the recording ranges of a recorder have changed.
struct RecordingRangesChangedEventArgs : ClipStatusEventArgs
{
    bool operator==(RecordingRangesChangedEventArgs const&) const = default;

    Data::Channels::Guid recorderId;
    std::vector<Data::Clips::RecordingRange> recordingRanges;
    bool isInBoundMoving = false;
    bool isOutBoundMoving = false;
};

} // namespace Talvo::Corvane::Notification
