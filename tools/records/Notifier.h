#pragma once

#include "tools/RecordType.h"

#include "Domain/CorvaneData/Clips/Groups/AnglesGroup.h"
#include "Domain/CorvaneData/Notification/AnglesGroupCreationEventArgs.h"
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

#include <tuple>
#include <type_traits>

namespace Talvo::Tools
{

/// Stands for any argument of an event: 0, no, or nothing in it.
struct AnyNew
{
    template<typename T>
    requires std::is_default_constructible_v<T>
    operator T() const { return T(); }

    operator Corvane::Data::Clips::Groups::AnglesGroup() const
    {
        return Corvane::Data::Clips::Groups::AnglesGroup(Corvane::Data::Clips::Groups::Guid());
    }

    operator Corvane::Data::Servers::ServerId() const { return Corvane::Data::Servers::ServerId::None(); }
};

/// A new event, built of as many empty arguments as it takes.
template<typename TWire, typename TEvent, typename... TArguments>
TEvent NewEvent(TWire const& wire)
{
    if constexpr (std::is_constructible_v<TEvent, TArguments...>)
        return TEvent(TArguments()...);
    else
        return NewEvent<TWire, TEvent, TArguments..., AnyNew>(wire);
}

template<typename TWire, typename TToWire, typename TToDomain, typename TEvent>
using Event = Record<TWire, TToWire, TToDomain, TEvent, &NewEvent<TWire, TEvent>>;

constexpr auto NotifierRecords()
{
    namespace Notification = Corvane::Notification;
    using namespace Corvane::Zelmar::Serialization::Thrift::Notifier;

    return std::tuple{
        Event<Generated::AnglesGroupCreationEventArgs, AnglesGroupCreationEventArgsToThriftConverter,
              ThriftToAnglesGroupCreationEventArgsConverter, Notification::AnglesGroupCreationEventArgs>(
            "AnglesGroupCreationEventArgs"),
        Record<Generated::AnglesGroupCreationFailedEventArgs, AnglesGroupCreationFailedEventArgsToThriftConverter>(
            "AnglesGroupCreationFailedEventArgs"),
        Event<Generated::AnglesGroupCreationFinishedEventArgs, AnglesGroupCreationFinishedEventArgsToThriftConverter,
              ThriftToAnglesGroupCreationFinishedEventArgsConverter,
              Notification::AnglesGroupCreationFinishedEventArgs>("AnglesGroupCreationFinishedEventArgs"),
        Record<Generated::AnglesGroupDeletionEventArgs>("AnglesGroupDeletionEventArgs"),
        Record<Generated::AnglesGroupDeletionFailedEventArgs>("AnglesGroupDeletionFailedEventArgs"),
        Event<Generated::AnglesGroupDeletionFinishedEventArgs, AnglesGroupDeletionFinishedEventArgsToThriftConverter,
              ThriftToAnglesGroupDeletionFinishedEventArgsConverter,
              Notification::AnglesGroupDeletionFinishedEventArgs>("AnglesGroupDeletionFinishedEventArgs"),
        Record<Generated::AnglesGroupUpdateEventArgs>("AnglesGroupUpdateEventArgs"),
        Record<Generated::AnglesGroupUpdateFailedEventArgs>("AnglesGroupUpdateFailedEventArgs"),
        Event<Generated::AnglesGroupUpdateFinishedEventArgs, AnglesGroupUpdateFinishedEventArgsToThriftConverter,
              ThriftToAnglesGroupUpdateFinishedEventArgsConverter, Notification::AnglesGroupUpdateFinishedEventArgs>(
            "AnglesGroupUpdateFinishedEventArgs"),
        Event<Generated::ClipCommandEventArgs, ClipCommandEventArgsToThriftConverter,
              ThriftToClipCommandEventArgsConverter, Notification::ClipCommandEventArgs>("ClipCommandEventArgs"),
        Event<Generated::ClipCreationFailedEventArgs, ClipCreationFailedEventArgsToThriftConverter,
              ThriftToClipCreationFailedEventArgsConverter, Notification::ClipCreationFailedEventArgs>(
            "ClipCreationFailedEventArgs"),
        Event<Generated::ClipCreationFinishedEventArgs, ClipCreationFinishedEventArgsToThriftConverter,
              ThriftToClipCreationFinishedEventArgsConverter, Notification::ClipCreationFinishedEventArgs>(
            "ClipCreationFinishedEventArgs"),
        Event<Generated::ClipCreationStartedEventArgs, ClipCreationStartedEventArgsToThriftConverter,
              ThriftToClipCreationStartedEventArgsConverter, Notification::ClipCreationEventArgs>(
            "ClipCreationStartedEventArgs"),
        Event<Generated::ClipDeletionFailedEventArgs, ClipDeletionFailedEventArgsToThriftConverter,
              ThriftToClipDeletionFailedEventArgsConverter, Notification::ClipDeletionFailedEventArgs>(
            "ClipDeletionFailedEventArgs"),
        Event<Generated::ClipDeletionFinishedEventArgs, ClipDeletionFinishedEventArgsToThriftConverter,
              ThriftToClipDeletionFinishedEventArgsConverter, Notification::ClipDeletionFinishedEventArgs>(
            "ClipDeletionFinishedEventArgs"),
        Event<Generated::ClipMoveFailedEventArgs, ClipMoveFailedEventArgsToThriftConverter,
              ThriftToClipMoveFailedEventArgsConverter, Notification::ClipMoveFailedEventArgs>(
            "ClipMoveFailedEventArgs"),
        Event<Generated::ClipMoveFinishedEventArgs, ClipMoveFinishedEventArgsToThriftConverter,
              ThriftToClipMoveFinishedEventArgsConverter, Notification::ClipMoveFinishedEventArgs>(
            "ClipMoveFinishedEventArgs"),
        Event<Generated::ClipMoveStartedEventArgs, ClipMoveStartedEventArgsToThriftConverter,
              ThriftToClipMoveStartedEventArgsConverter, Notification::ClipMoveEventArgs>("ClipMoveStartedEventArgs"),
        Event<Generated::ClipUpdateFailedEventArgs, ClipUpdateFailedEventArgsToThriftConverter,
              ThriftToClipUpdateFailedEventArgsConverter, Notification::ClipUpdateFailedEventArgs>(
            "ClipUpdateFailedEventArgs"),
        Event<Generated::ClipUpdateFinishedEventArgs, ClipUpdateFinishedEventArgsToThriftConverter,
              ThriftToClipUpdateFinishedEventArgsConverter, Notification::ClipUpdateFinishedEventArgs>(
            "ClipUpdateFinishedEventArgs"),
        Event<Generated::DisconnectedFromNetworkEventArgs, DisconnectedFromNetworkEventArgsToThriftConverter,
              ThriftToDisconnectedFromNetworkEventArgsConverter, Notification::DisconnectedFromNetworkEventArgs>(
            "DisconnectedFromNetworkEventArgs"),
        Event<Generated::MassClipDeletionFailedEventArgs, MassClipDeletionFailedEventArgsToThriftConverter,
              ThriftToMassClipDeletionFailedEventArgsConverter, Notification::MassClipDeletionFailedEventArgs>(
            "MassClipDeletionFailedEventArgs"),
        Event<Generated::MassClipDeletionFinishedEventArgs, MassClipDeletionFinishedEventArgsToThriftConverter,
              ThriftToMassClipDeletionFinishedEventArgsConverter, Notification::MassClipDeletionEventArgs>(
            "MassClipDeletionFinishedEventArgs"),
        Event<Generated::MassClipUpdateFailedEventArgs, MassClipUpdateFailedEventArgsToThriftConverter,
              ThriftToMassClipUpdateFailedEventArgsConverter, Notification::MassClipUpdateFailedEventArgs>(
            "MassClipUpdateFailedEventArgs"),
        Event<Generated::MassClipUpdateFinishedEventArgs, MassClipUpdateFinishedEventArgsToThriftConverter,
              ThriftToMassClipUpdateFinishedEventArgsConverter, Notification::MassClipUpdateEventArgs>(
            "MassClipUpdateFinishedEventArgs"),
        Event<Generated::PlayerStateChangedEventArgs, PlayerStateChangedEventArgsToThriftConverter,
              ThriftToPlayerStateChangedEventArgsConverter, Notification::PlayerStateChangedEventArgs>(
            "PlayerStateChangedEventArgs"),
        Event<Generated::RecorderStateChangedEventArgs, RecorderStateChangedEventArgsToThriftConverter,
              ThriftToRecorderStateChangedEventArgsConverter, Notification::RecorderStateChangedEventArgs>(
            "RecorderStateChangedEventArgs"),
        Event<Generated::RecordingRangesChangedEventArgs, RecordingRangesChangedEventArgsToThriftConverter,
              ThriftToRecordingRangesChangedEventArgsConverter, Notification::RecordingRangesChangedEventArgs>(
            "RecordingRangesChangedEventArgs"),
        Event<Generated::ServerAddedEventArgs, ServerAddedEventArgsToThriftConverter,
              ThriftToServerAddedEventArgsConverter, Notification::ServerAddedEventArgs>("ServerAddedEventArgs"),
        Event<Generated::ServerRemovedEventArgs, ServerRemovedEventArgsToThriftConverter,
              ThriftToServerRemovedEventArgsConverter, Notification::ServerRemovedEventArgs>("ServerRemovedEventArgs"),
    };
}

} // namespace Talvo::Tools
