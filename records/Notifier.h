#pragma once

#include "records/Pairs.h"

#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"
#include "Domain/CorvaneData/Notification/AnglesGroupCreationEventArgs.h"
#include "Domain/CorvaneData/Notification/AnglesGroupCreationFailedEventArgs.h"
#include "Domain/CorvaneData/Notification/AnglesGroupCreationFinishedEventArgs.h"
#include "Domain/CorvaneData/Notification/AnglesGroupDeletionFinishedEventArgs.h"
#include "Domain/CorvaneData/Notification/AnglesGroupUpdateFinishedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipCommandEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipCreationEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipCreationFailedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipCreationFinishedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipDeletionFailedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipDeletionFinishedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipMoveEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipMoveFailedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipMoveFinishedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipUpdateFailedEventArgs.h"
#include "Domain/CorvaneData/Notification/ClipUpdateFinishedEventArgs.h"
#include "Domain/CorvaneData/Notification/DisconnectedFromNetworkEventArgs.h"
#include "Domain/CorvaneData/Notification/MassClipDeletionEventArgs.h"
#include "Domain/CorvaneData/Notification/MassClipDeletionFailedEventArgs.h"
#include "Domain/CorvaneData/Notification/MassClipUpdateEventArgs.h"
#include "Domain/CorvaneData/Notification/MassClipUpdateFailedEventArgs.h"
#include "Domain/CorvaneData/Notification/PlayerStateChangedEventArgs.h"
#include "Domain/CorvaneData/Notification/RecorderStateChangedEventArgs.h"
#include "Domain/CorvaneData/Notification/RecordingRangesChangedEventArgs.h"
#include "Domain/CorvaneData/Notification/ServerAddedEventArgs.h"
#include "Domain/CorvaneData/Notification/ServerRemovedEventArgs.h"
#include "Domain/CorvaneData/Servers/ServerId.h"
#include "Thrift/Notifier.h"

namespace Talvo::Records
{

constexpr auto NotifierPairs()
{
    using namespace Corvane::Zelmar::Serialization::Thrift::Notifier;
    return PairList<
        Pair<AnglesGroupCreationEventArgsToThriftConverter, ThriftToAnglesGroupCreationEventArgsConverter>,
        Pair<AnglesGroupCreationFailedEventArgsToThriftConverter, void>,
        Pair<AnglesGroupCreationFinishedEventArgsToThriftConverter,
             ThriftToAnglesGroupCreationFinishedEventArgsConverter>,
        Pair<AnglesGroupDeletionFinishedEventArgsToThriftConverter,
             ThriftToAnglesGroupDeletionFinishedEventArgsConverter>,
        Pair<AnglesGroupUpdateFinishedEventArgsToThriftConverter, ThriftToAnglesGroupUpdateFinishedEventArgsConverter>,
        Pair<ClipCommandEventArgsToThriftConverter, ThriftToClipCommandEventArgsConverter>,
        Pair<ClipCreationFailedEventArgsToThriftConverter, ThriftToClipCreationFailedEventArgsConverter>,
        Pair<ClipCreationFinishedEventArgsToThriftConverter, ThriftToClipCreationFinishedEventArgsConverter>,
        Pair<ClipCreationStartedEventArgsToThriftConverter, ThriftToClipCreationStartedEventArgsConverter>,
        Pair<ClipDeletionFailedEventArgsToThriftConverter, ThriftToClipDeletionFailedEventArgsConverter>,
        Pair<ClipDeletionFinishedEventArgsToThriftConverter, ThriftToClipDeletionFinishedEventArgsConverter>,
        Pair<ClipMoveFailedEventArgsToThriftConverter, ThriftToClipMoveFailedEventArgsConverter>,
        Pair<ClipMoveFinishedEventArgsToThriftConverter, ThriftToClipMoveFinishedEventArgsConverter>,
        Pair<ClipMoveStartedEventArgsToThriftConverter, ThriftToClipMoveStartedEventArgsConverter>,
        Pair<ClipUpdateFailedEventArgsToThriftConverter, ThriftToClipUpdateFailedEventArgsConverter>,
        Pair<ClipUpdateFinishedEventArgsToThriftConverter, ThriftToClipUpdateFinishedEventArgsConverter>,
        Pair<DisconnectedFromNetworkEventArgsToThriftConverter, ThriftToDisconnectedFromNetworkEventArgsConverter>,
        Pair<MassClipDeletionFailedEventArgsToThriftConverter, ThriftToMassClipDeletionFailedEventArgsConverter>,
        Pair<MassClipDeletionFinishedEventArgsToThriftConverter, ThriftToMassClipDeletionFinishedEventArgsConverter>,
        Pair<MassClipUpdateFailedEventArgsToThriftConverter, ThriftToMassClipUpdateFailedEventArgsConverter>,
        Pair<MassClipUpdateFinishedEventArgsToThriftConverter, ThriftToMassClipUpdateFinishedEventArgsConverter>,
        Pair<PlayerStateChangedEventArgsToThriftConverter, ThriftToPlayerStateChangedEventArgsConverter>,
        Pair<RecorderStateChangedEventArgsToThriftConverter, ThriftToRecorderStateChangedEventArgsConverter>,
        Pair<RecordingRangesChangedEventArgsToThriftConverter, ThriftToRecordingRangesChangedEventArgsConverter>,
        Pair<ServerAddedEventArgsToThriftConverter, ThriftToServerAddedEventArgsConverter>,
        Pair<ServerRemovedEventArgsToThriftConverter, ThriftToServerRemovedEventArgsConverter>>();
}

} // namespace Talvo::Records
