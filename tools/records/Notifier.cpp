#include "tools/RecordTypes.h"

#include "generated/AnglesGroupCreationEventArgs_types.h"
#include "generated/AnglesGroupDeletionEventArgs_types.h"
#include "generated/AnglesGroupUpdateEventArgs_types.h"
#include "generated/ClipCommandEventArgs_types.h"
#include "generated/ClipCreationEventArgs_types.h"
#include "generated/ClipDeletionEventArgs_types.h"
#include "generated/ClipMoveEventArgs_types.h"
#include "generated/ClipUpdateEventArgs_types.h"
#include "generated/DisconnectedFromNetworkEA_types.h"
#include "generated/MassClipDeletionEventArgs_types.h"
#include "generated/MassClipUpdateEventArgs_types.h"
#include "generated/PlayerStateChangedEA_types.h"
#include "generated/RecorderStateChangedEA_types.h"
#include "generated/RecordingRangesChangedEA_types.h"
#include "generated/ServerAddedEA_types.h"
#include "generated/ServerRemovedEA_types.h"

namespace Talvo::Tools
{

std::vector<RecordType> NotifierRecords()
{
    using namespace Corvane::Zelmar::Serialization::Thrift::Notifier;

    return {
        Record<Generated::AnglesGroupCreationEventArgs>("AnglesGroupCreationEventArgs"),
        Record<Generated::AnglesGroupCreationFailedEventArgs>("AnglesGroupCreationFailedEventArgs"),
        Record<Generated::AnglesGroupCreationFinishedEventArgs>("AnglesGroupCreationFinishedEventArgs"),
        Record<Generated::AnglesGroupDeletionEventArgs>("AnglesGroupDeletionEventArgs"),
        Record<Generated::AnglesGroupDeletionFailedEventArgs>("AnglesGroupDeletionFailedEventArgs"),
        Record<Generated::AnglesGroupDeletionFinishedEventArgs>("AnglesGroupDeletionFinishedEventArgs"),
        Record<Generated::AnglesGroupUpdateEventArgs>("AnglesGroupUpdateEventArgs"),
        Record<Generated::AnglesGroupUpdateFailedEventArgs>("AnglesGroupUpdateFailedEventArgs"),
        Record<Generated::AnglesGroupUpdateFinishedEventArgs>("AnglesGroupUpdateFinishedEventArgs"),
        Record<Generated::ClipCommandEventArgs>("ClipCommandEventArgs"),
        Record<Generated::ClipCreationFailedEventArgs>("ClipCreationFailedEventArgs"),
        Record<Generated::ClipCreationFinishedEventArgs>("ClipCreationFinishedEventArgs"),
        Record<Generated::ClipCreationStartedEventArgs>("ClipCreationStartedEventArgs"),
        Record<Generated::ClipDeletionFailedEventArgs>("ClipDeletionFailedEventArgs"),
        Record<Generated::ClipDeletionFinishedEventArgs>("ClipDeletionFinishedEventArgs"),
        Record<Generated::ClipMoveFailedEventArgs>("ClipMoveFailedEventArgs"),
        Record<Generated::ClipMoveFinishedEventArgs>("ClipMoveFinishedEventArgs"),
        Record<Generated::ClipMoveStartedEventArgs>("ClipMoveStartedEventArgs"),
        Record<Generated::ClipUpdateFailedEventArgs>("ClipUpdateFailedEventArgs"),
        Record<Generated::ClipUpdateFinishedEventArgs>("ClipUpdateFinishedEventArgs"),
        Record<Generated::DisconnectedFromNetworkEventArgs>("DisconnectedFromNetworkEventArgs"),
        Record<Generated::MassClipDeletionFailedEventArgs>("MassClipDeletionFailedEventArgs"),
        Record<Generated::MassClipDeletionFinishedEventArgs>("MassClipDeletionFinishedEventArgs"),
        Record<Generated::MassClipUpdateFailedEventArgs>("MassClipUpdateFailedEventArgs"),
        Record<Generated::MassClipUpdateFinishedEventArgs>("MassClipUpdateFinishedEventArgs"),
        Record<Generated::PlayerStateChangedEventArgs>("PlayerStateChangedEventArgs"),
        Record<Generated::RecorderStateChangedEventArgs>("RecorderStateChangedEventArgs"),
        Record<Generated::RecordingRangesChangedEventArgs>("RecordingRangesChangedEventArgs"),
        Record<Generated::ServerAddedEventArgs>("ServerAddedEventArgs"),
        Record<Generated::ServerRemovedEventArgs>("ServerRemovedEventArgs"),
    };
}

} // namespace Talvo::Tools
