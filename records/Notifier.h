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
#include "Thrift/Notifier/FromAnglesGroupCreationEventArgs.h"
#include "Thrift/Notifier/FromAnglesGroupCreationFailedEventArgs.h"
#include "Thrift/Notifier/FromAnglesGroupCreationFinishedEventArgs.h"
#include "Thrift/Notifier/FromAnglesGroupDeletionFinishedEventArgs.h"
#include "Thrift/Notifier/FromAnglesGroupUpdateFinishedEventArgs.h"
#include "Thrift/Notifier/FromClipCommandEventArgs.h"
#include "Thrift/Notifier/FromClipCreationFailedEventArgs.h"
#include "Thrift/Notifier/FromClipCreationFinishedEventArgs.h"
#include "Thrift/Notifier/FromClipCreationStartedEventArgs.h"
#include "Thrift/Notifier/FromClipDeletionFailedEventArgs.h"
#include "Thrift/Notifier/FromClipDeletionFinishedEventArgs.h"
#include "Thrift/Notifier/FromClipMoveFailedEventArgs.h"
#include "Thrift/Notifier/FromClipMoveFinishedEventArgs.h"
#include "Thrift/Notifier/FromClipMoveStartedEventArgs.h"
#include "Thrift/Notifier/FromClipUpdateFailedEventArgs.h"
#include "Thrift/Notifier/FromClipUpdateFinishedEventArgs.h"
#include "Thrift/Notifier/FromDisconnectedFromNetworkEventArgs.h"
#include "Thrift/Notifier/FromMassClipDeletionFailedEventArgs.h"
#include "Thrift/Notifier/FromMassClipDeletionFinishedEventArgs.h"
#include "Thrift/Notifier/FromMassClipUpdateFailedEventArgs.h"
#include "Thrift/Notifier/FromMassClipUpdateFinishedEventArgs.h"
#include "Thrift/Notifier/FromPlayerStateChangedEventArgs.h"
#include "Thrift/Notifier/FromRecorderStateChangedEventArgs.h"
#include "Thrift/Notifier/FromRecordingRangesChangedEventArgs.h"
#include "Thrift/Notifier/FromServerAddedEventArgs.h"
#include "Thrift/Notifier/FromServerRemovedEventArgs.h"
#include "Thrift/Notifier/ToAnglesGroupCreationEventArgs.h"
#include "Thrift/Notifier/ToAnglesGroupCreationFinishedEventArgs.h"
#include "Thrift/Notifier/ToAnglesGroupDeletionFinishedEventArgs.h"
#include "Thrift/Notifier/ToAnglesGroupUpdateFinishedEventArgs.h"
#include "Thrift/Notifier/ToClipCommandEventArgs.h"
#include "Thrift/Notifier/ToClipCreationFailedEventArgs.h"
#include "Thrift/Notifier/ToClipCreationFinishedEventArgs.h"
#include "Thrift/Notifier/ToClipCreationStartedEventArgs.h"
#include "Thrift/Notifier/ToClipDeletionFailedEventArgs.h"
#include "Thrift/Notifier/ToClipDeletionFinishedEventArgs.h"
#include "Thrift/Notifier/ToClipMoveFailedEventArgs.h"
#include "Thrift/Notifier/ToClipMoveFinishedEventArgs.h"
#include "Thrift/Notifier/ToClipMoveStartedEventArgs.h"
#include "Thrift/Notifier/ToClipUpdateFailedEventArgs.h"
#include "Thrift/Notifier/ToClipUpdateFinishedEventArgs.h"
#include "Thrift/Notifier/ToDisconnectedFromNetworkEventArgs.h"
#include "Thrift/Notifier/ToMassClipDeletionFailedEventArgs.h"
#include "Thrift/Notifier/ToMassClipDeletionFinishedEventArgs.h"
#include "Thrift/Notifier/ToMassClipUpdateFailedEventArgs.h"
#include "Thrift/Notifier/ToMassClipUpdateFinishedEventArgs.h"
#include "Thrift/Notifier/ToPlayerStateChangedEventArgs.h"
#include "Thrift/Notifier/ToRecorderStateChangedEventArgs.h"
#include "Thrift/Notifier/ToRecordingRangesChangedEventArgs.h"
#include "Thrift/Notifier/ToServerAddedEventArgs.h"
#include "Thrift/Notifier/ToServerRemovedEventArgs.h"

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
