#pragma once

#include "tools/RecordType.h"

#include "Domain/HighLevelOperations/Commands/AnglesGroupCommandReply.h"
#include "Domain/HighLevelOperations/Commands/ChainCommandParams.h"
#include "Domain/HighLevelOperations/Commands/ChannelCommandReply.h"
#include "Domain/HighLevelOperations/Commands/ClipCommandReply.h"
#include "Domain/HighLevelOperations/Commands/ClipResultsItem.h"
#include "Domain/HighLevelOperations/Commands/CreateAnglesGroupCommandParams.h"
#include "Domain/HighLevelOperations/Commands/CreateClipsCommandParams.h"
#include "Domain/HighLevelOperations/Commands/CreatePlaylistsCommandParams.h"
#include "Domain/HighLevelOperations/Commands/DeleteAnglesGroupCommandParams.h"
#include "Domain/HighLevelOperations/Commands/DeleteClipsCommandParams.h"
#include "Domain/HighLevelOperations/Commands/DeletePlaylistsCommandParams.h"
#include "Domain/HighLevelOperations/Commands/DialCommandParams.h"
#include "Domain/HighLevelOperations/Commands/FailureReply.h"
#include "Domain/HighLevelOperations/Commands/GetAnglesGroupsCommandParams.h"
#include "Domain/HighLevelOperations/Commands/GetAnglesGroupsCommandReply.h"
#include "Domain/HighLevelOperations/Commands/GetChannelsCommandParams.h"
#include "Domain/HighLevelOperations/Commands/GetChannelsCommandReply.h"
#include "Domain/HighLevelOperations/Commands/GetClipsCommandParams.h"
#include "Domain/HighLevelOperations/Commands/GetClipsCommandReply.h"
#include "Domain/HighLevelOperations/Commands/GetMultiviewerDataCommandParams.h"
#include "Domain/HighLevelOperations/Commands/GetMultiviewerDataCommandReply.h"
#include "Domain/HighLevelOperations/Commands/GetPlaylistsCommandParams.h"
#include "Domain/HighLevelOperations/Commands/GetPlaylistsCommandReply.h"
#include "Domain/HighLevelOperations/Commands/GetServersCommandParams.h"
#include "Domain/HighLevelOperations/Commands/GetServersCommandReply.h"
#include "Domain/HighLevelOperations/Commands/GetTrainsCommandParams.h"
#include "Domain/HighLevelOperations/Commands/GetTrainsCommandReply.h"
#include "Domain/HighLevelOperations/Commands/GoIdleCommandParams.h"
#include "Domain/HighLevelOperations/Commands/LiveCommandParams.h"
#include "Domain/HighLevelOperations/Commands/LoadClipsCommandParams.h"
#include "Domain/HighLevelOperations/Commands/LoadSequencesCommandParams.h"
#include "Domain/HighLevelOperations/Commands/PingCommandParams.h"
#include "Domain/HighLevelOperations/Commands/PlayCommandParams.h"
#include "Domain/HighLevelOperations/Commands/PlaylistCommandReply.h"
#include "Domain/HighLevelOperations/Commands/PlaylistResultsItem.h"
#include "Domain/HighLevelOperations/Commands/SetLoadBoundariesCommandParams.h"
#include "Domain/HighLevelOperations/Commands/SetMultiviewerDataCommandParams.h"
#include "Domain/HighLevelOperations/Commands/StartCommandParams.h"
#include "Domain/HighLevelOperations/Commands/StepCommandParams.h"
#include "Domain/HighLevelOperations/Commands/StopCommandParams.h"
#include "Domain/HighLevelOperations/Commands/SuccessReply.h"
#include "Domain/HighLevelOperations/Commands/SyncCommandParams.h"
#include "Domain/HighLevelOperations/Commands/UnknownCommandReply.h"
#include "Domain/HighLevelOperations/Commands/UpdateAnglesGroupCommandParams.h"
#include "Domain/HighLevelOperations/Commands/UpdateClipsCommandParams.h"
#include "Domain/HighLevelOperations/Commands/UpdatePlaylistsCommandParams.h"
#include "Thrift/Commands/FromAnglesGroupCommandReply.h"
#include "Thrift/Commands/FromChainCommandParams.h"
#include "Thrift/Commands/FromChannelCommandReply.h"
#include "Thrift/Commands/FromClipCommandReply.h"
#include "Thrift/Commands/FromClipResultsItem.h"
#include "Thrift/Commands/FromCreateAnglesGroupCommandParams.h"
#include "Thrift/Commands/FromCreateClipsCommandParams.h"
#include "Thrift/Commands/FromCreatePlaylistsCommandParams.h"
#include "Thrift/Commands/FromDeleteAnglesGroupCommandParams.h"
#include "Thrift/Commands/FromDeleteClipsCommandParams.h"
#include "Thrift/Commands/FromDeletePlaylistsCommandParams.h"
#include "Thrift/Commands/FromDialCommandParams.h"
#include "Thrift/Commands/FromFailureReply.h"
#include "Thrift/Commands/FromGetAnglesGroupsCommandParams.h"
#include "Thrift/Commands/FromGetAnglesGroupsCommandReply.h"
#include "Thrift/Commands/FromGetChannelsCommandParams.h"
#include "Thrift/Commands/FromGetChannelsCommandReply.h"
#include "Thrift/Commands/FromGetClipsCommandParams.h"
#include "Thrift/Commands/FromGetClipsCommandReply.h"
#include "Thrift/Commands/FromGetMultiviewerDataCommandParams.h"
#include "Thrift/Commands/FromGetMultiviewerDataCommandReply.h"
#include "Thrift/Commands/FromGetPlaylistsCommandParams.h"
#include "Thrift/Commands/FromGetPlaylistsCommandReply.h"
#include "Thrift/Commands/FromGetServersCommandParams.h"
#include "Thrift/Commands/FromGetServersCommandReply.h"
#include "Thrift/Commands/FromGetTrainsCommandParams.h"
#include "Thrift/Commands/FromGetTrainsCommandReply.h"
#include "Thrift/Commands/FromGoIdleCommandParams.h"
#include "Thrift/Commands/FromLiveCommandParams.h"
#include "Thrift/Commands/FromLoadClipsCommandParams.h"
#include "Thrift/Commands/FromLoadSequencesCommandParams.h"
#include "Thrift/Commands/FromPingCommandParams.h"
#include "Thrift/Commands/FromPlayCommandParams.h"
#include "Thrift/Commands/FromPlaylistCommandReply.h"
#include "Thrift/Commands/FromPlaylistResultsItem.h"
#include "Thrift/Commands/FromSetLoadBoundariesCommandParams.h"
#include "Thrift/Commands/FromSetMultiviewerDataCommandParams.h"
#include "Thrift/Commands/FromStartRecordingCommandParams.h"
#include "Thrift/Commands/FromStepCommandParams.h"
#include "Thrift/Commands/FromStopRecordingCommandParams.h"
#include "Thrift/Commands/FromSuccessReply.h"
#include "Thrift/Commands/FromSyncCommandParams.h"
#include "Thrift/Commands/FromUnknownCommandReply.h"
#include "Thrift/Commands/FromUpdateAnglesGroupCommandParams.h"
#include "Thrift/Commands/FromUpdateClipsCommandParams.h"
#include "Thrift/Commands/FromUpdatePlaylistsCommandParams.h"
#include "Thrift/Commands/ToAnglesGroupCommandReply.h"
#include "Thrift/Commands/ToChainCommandParams.h"
#include "Thrift/Commands/ToChannelCommandReply.h"
#include "Thrift/Commands/ToClipCommandReply.h"
#include "Thrift/Commands/ToClipResultsItem.h"
#include "Thrift/Commands/ToCreateAnglesGroupCommandParams.h"
#include "Thrift/Commands/ToCreateClipsCommandParams.h"
#include "Thrift/Commands/ToCreatePlaylistsCommandParams.h"
#include "Thrift/Commands/ToDeleteAnglesGroupCommandParams.h"
#include "Thrift/Commands/ToDeleteClipsCommandParams.h"
#include "Thrift/Commands/ToDeletePlaylistsCommandParams.h"
#include "Thrift/Commands/ToDialCommandParams.h"
#include "Thrift/Commands/ToFailureReply.h"
#include "Thrift/Commands/ToGetAnglesGroupsCommandParams.h"
#include "Thrift/Commands/ToGetAnglesGroupsCommandReply.h"
#include "Thrift/Commands/ToGetChannelsCommandParams.h"
#include "Thrift/Commands/ToGetChannelsCommandReply.h"
#include "Thrift/Commands/ToGetClipsCommandParams.h"
#include "Thrift/Commands/ToGetClipsCommandReply.h"
#include "Thrift/Commands/ToGetMultiviewerDataCommandParams.h"
#include "Thrift/Commands/ToGetMultiviewerDataCommandReply.h"
#include "Thrift/Commands/ToGetPlaylistsCommandParams.h"
#include "Thrift/Commands/ToGetPlaylistsCommandReply.h"
#include "Thrift/Commands/ToGetServersCommandParams.h"
#include "Thrift/Commands/ToGetServersCommandReply.h"
#include "Thrift/Commands/ToGetTrainsCommandParams.h"
#include "Thrift/Commands/ToGetTrainsCommandReply.h"
#include "Thrift/Commands/ToGoIdleCommandParams.h"
#include "Thrift/Commands/ToLiveCommandParams.h"
#include "Thrift/Commands/ToLoadClipsCommandParams.h"
#include "Thrift/Commands/ToLoadSequencesCommandParams.h"
#include "Thrift/Commands/ToPingCommandParams.h"
#include "Thrift/Commands/ToPlayCommandParams.h"
#include "Thrift/Commands/ToPlaylistCommandReply.h"
#include "Thrift/Commands/ToPlaylistResultsItem.h"
#include "Thrift/Commands/ToSetLoadBoundariesCommandParams.h"
#include "Thrift/Commands/ToSetMultiviewerDataCommandParams.h"
#include "Thrift/Commands/ToStartRecordingCommandParams.h"
#include "Thrift/Commands/ToStepCommandParams.h"
#include "Thrift/Commands/ToStopRecordingCommandParams.h"
#include "Thrift/Commands/ToSuccessReply.h"
#include "Thrift/Commands/ToSyncCommandParams.h"
#include "Thrift/Commands/ToUnknownCommandReply.h"
#include "Thrift/Commands/ToUpdateAnglesGroupCommandParams.h"
#include "Thrift/Commands/ToUpdateClipsCommandParams.h"
#include "Thrift/Commands/ToUpdatePlaylistsCommandParams.h"

#include "generated/AnglesGroupCommandReply_types.h"
#include "generated/ChainCommandParams_types.h"
#include "generated/ChannelCommandReply_types.h"
#include "generated/ClipCommandReply_types.h"
#include "generated/ClipResultsItem_types.h"
#include "generated/CreateAnglesGroupCommandParams_types.h"
#include "generated/CreateClipsCommandParams_types.h"
#include "generated/CreatePlaylistsCommandParams_types.h"
#include "generated/DeleteAnglesGroupCommandParams_types.h"
#include "generated/DeleteClipsCommandParams_types.h"
#include "generated/DeletePlaylistsCommandParams_types.h"
#include "generated/DialCommandParams_types.h"
#include "generated/FailureReply_types.h"
#include "generated/GetAnglesGroupsCommandParams_types.h"
#include "generated/GetAnglesGroupsCommandReply_types.h"
#include "generated/GetChannelsCommandParams_types.h"
#include "generated/GetChannelsCommandReply_types.h"
#include "generated/GetClipsCommandParams_types.h"
#include "generated/GetClipsCommandReply_types.h"
#include "generated/GetMultiviewerDataCommandParams_types.h"
#include "generated/GetMultiviewerDataCommandReply_types.h"
#include "generated/GetPlaylistsCommandParams_types.h"
#include "generated/GetPlaylistsCommandReply_types.h"
#include "generated/GetServersCommandParams_types.h"
#include "generated/GetServersCommandReply_types.h"
#include "generated/GetTrainsCommandParams_types.h"
#include "generated/GetTrainsCommandReply_types.h"
#include "generated/GoIdleCommandParams_types.h"
#include "generated/LiveCommandParams_types.h"
#include "generated/LoadClipsCommandParams_types.h"
#include "generated/LoadSequencesCommandParams_types.h"
#include "generated/PingCommandParams_types.h"
#include "generated/PlayCommandParams_types.h"
#include "generated/PlaylistCommandReply_types.h"
#include "generated/PlaylistResultsItem_types.h"
#include "generated/SetLoadBoundariesCommandParams_types.h"
#include "generated/SetMultiViewerDataCommandParams_types.h"
#include "generated/StartRecordingCommandParams_types.h"
#include "generated/StepCommandParams_types.h"
#include "generated/StopRecordingCommandParams_types.h"
#include "generated/SuccessReply_types.h"
#include "generated/SyncCommandParams_types.h"
#include "generated/UnknownCommandReply_types.h"
#include "generated/UpdateAnglesGroupCommandParams_types.h"
#include "generated/UpdateClipsCommandParams_types.h"
#include "generated/UpdatePlaylistsCommandParams_types.h"

#include <tuple>

namespace Talvo::Tools
{

/// A new reply, where that takes an identifier and what it holds: nothing of all that.
template<typename TWire, typename TReply>
TReply NewReply(TWire const&)
{
    auto const& guid = Corvane::Data::Guid::Empty();
    if constexpr (requires { TReply(guid); })
        return TReply(guid);
    else if constexpr (requires { TReply(guid, {}); })
        return TReply(guid, {});
    else
        return TReply(guid, {}, {});
}

constexpr auto CommandRecords()
{
    namespace Domain = Corvane::Zelmar::HighLevelOperations::Commands;
    using namespace Corvane::Zelmar::Serialization::Thrift::Commands;

    return std::tuple{
        Record<Generated::AnglesGroupCommandReply, AnglesGroupCommandReplyToThriftConverter,
               ThriftToAnglesGroupCommandReplyConverter, Domain::AnglesGroupCommandReply,
               &NewReply<Generated::AnglesGroupCommandReply, Domain::AnglesGroupCommandReply>>(
            "AnglesGroupCommandReply"),
        Record<Generated::ChainCommandParams, ChainCommandParamsToThriftConverter, ThriftToChainCommandParamsConverter,
               Domain::ChainCommandParams>("ChainCommandParams"),
        Record<Generated::ChannelCommandReply, ChannelCommandReplyToThriftConverter,
               ThriftToChannelCommandReplyConverter, Domain::ChannelCommandReply,
               &NewReply<Generated::ChannelCommandReply, Domain::ChannelCommandReply>>("ChannelCommandReply"),
        Record<Generated::ChannelResult>("ChannelResult"),
        Record<Generated::ClipCommandReply, ClipCommandReplyToThriftConverter, ThriftToClipCommandReplyConverter,
               Domain::ClipCommandReply, &NewReply<Generated::ClipCommandReply, Domain::ClipCommandReply>>(
            "ClipCommandReply"),
        Record<Generated::ClipResultsItem, ClipResultsItemToThriftConverter, ThriftToClipResultsItemConverter,
               Domain::ClipResultsItem>("ClipResultsItem"),
        Record<Generated::CreateAnglesGroupCommandParams, CreateAnglesGroupCommandParamsToThriftConverter,
               ThriftToCreateAnglesGroupCommandParamsConverter, Domain::CreateAnglesGroupCommandParams>(
            "CreateAnglesGroupCommandParams"),
        Record<Generated::CreateClipParams>("CreateClipParams"),
        Record<Generated::CreateClipsCommandParams, CreateClipsCommandParamsToThriftConverter,
               ThriftToCreateClipsCommandParamsConverter, Domain::CreateClipsCommandParams>("CreateClipsCommandParams"),
        Record<Generated::CreatePlaylistsCommandParams, CreatePlaylistsCommandParamsToThriftConverter,
               ThriftToCreatePlaylistsCommandParamsConverter, Domain::CreatePlaylistsCommandParams>(
            "CreatePlaylistsCommandParams"),
        Record<Generated::DeleteAnglesGroupCommandParams, DeleteAnglesGroupCommandParamsToThriftConverter,
               ThriftToDeleteAnglesGroupCommandParamsConverter, Domain::DeleteAnglesGroupCommandParams>(
            "DeleteAnglesGroupCommandParams"),
        Record<Generated::DeleteClipsCommandParams, DeleteClipsCommandParamsToThriftConverter,
               ThriftToDeleteClipsCommandParamsConverter, Domain::DeleteClipsCommandParams>("DeleteClipsCommandParams"),
        Record<Generated::DeletePlaylistsCommandParams, DeletePlaylistsCommandParamsToThriftConverter,
               ThriftToDeletePlaylistsCommandParamsConverter, Domain::DeletePlaylistsCommandParams>(
            "DeletePlaylistsCommandParams"),
        Record<Generated::DialCommandParams, DialCommandParamsToThriftConverter, ThriftToDialCommandParamsConverter,
               Domain::DialCommandParams>("DialCommandParams"),
        Record<Generated::FailureReply, FailureReplyToThriftConverter, ThriftToFailureReplyConverter,
               Domain::FailureReply, &NewReply<Generated::FailureReply, Domain::FailureReply>>("FailureReply"),
        Record<Generated::GetAnglesGroupsCommandParams, GetAnglesGroupsCommandParamsToThriftConverter,
               ThriftToGetAnglesGroupsCommandParamsConverter, Domain::GetAnglesGroupsCommandParams>(
            "GetAnglesGroupsCommandParams"),
        Record<Generated::GetAnglesGroupsCommandReply, GetAnglesGroupsCommandReplyToThriftConverter,
               ThriftToGetAnglesGroupsCommandReplyConverter, Domain::GetAnglesGroupsCommandReply,
               &NewReply<Generated::GetAnglesGroupsCommandReply, Domain::GetAnglesGroupsCommandReply>>(
            "GetAnglesGroupsCommandReply"),
        Record<Generated::GetChannelsCommandParams, GetChannelsCommandParamsToThriftConverter,
               ThriftToGetChannelsCommandParamsConverter, Domain::GetChannelsCommandParams>("GetChannelsCommandParams"),
        Record<Generated::GetChannelsCommandReply, GetChannelsCommandReplyToThriftConverter,
               GetChannelsCommandReplyFromThriftConverter, Domain::GetChannelsCommandReply>("GetChannelsCommandReply"),
        Record<Generated::GetClipsCommandParams, GetClipsCommandParamsToThriftConverter,
               ThriftToGetClipsCommandParamsConverter, Domain::GetClipsCommandParams>("GetClipsCommandParams"),
        Record<Generated::GetClipsCommandReply, GetClipsCommandReplyToThriftConverter,
               ThriftToGetClipsCommandReplyConverter, Domain::GetClipsCommandReply,
               &NewReply<Generated::GetClipsCommandReply, Domain::GetClipsCommandReply>>("GetClipsCommandReply"),
        Record<Generated::GetMultiviewerDataCommandParams, GetMultiviewerDataCommandParamsToThriftConverter,
               ThriftToGetMultiviewerDataCommandParamsConverter, Domain::GetMultiviewerDataCommandParams>(
            "GetMultiviewerDataCommandParams"),
        Record<Generated::GetMultiviewerDataCommandReply, GetMultiviewerDataCommandReplyToThriftConverter,
               ThriftToGetMultiviewerDataCommandReplyConverter, Domain::GetMultiviewerDataCommandReply>(
            "GetMultiviewerDataCommandReply"),
        Record<Generated::GetPlaylistsCommandParams, GetPlaylistsCommandParamsToThriftConverter,
               ThriftToGetPlaylistsCommandParamsConverter, Domain::GetPlaylistsCommandParams>(
            "GetPlaylistsCommandParams"),
        Record<Generated::GetPlaylistsCommandReply, GetPlaylistsCommandReplyToThriftConverter,
               ThriftToGetPlaylistsCommandReplyConverter, Domain::GetPlaylistsCommandReply,
               &NewReply<Generated::GetPlaylistsCommandReply, Domain::GetPlaylistsCommandReply>>(
            "GetPlaylistsCommandReply"),
        Record<Generated::GetServersCommandParams, GetServersCommandParamsToThriftConverter,
               ThriftToGetServersCommandParamsConverter, Domain::GetServersCommandParams>("GetServersCommandParams"),
        Record<Generated::GetServersCommandReply, GetServersCommandReplyToThriftConverter,
               ThriftToGetServersCommandReplyConverter, Domain::GetServersCommandReply>("GetServersCommandReply"),
        Record<Generated::GetTrainsCommandParams, GetTrainsCommandParamsToThriftConverter,
               ThriftToGetTrainsCommandParamsConverter, Domain::GetTrainsCommandParams>("GetTrainsCommandParams"),
        Record<Generated::GetTrainsCommandReply, GetTrainsCommandReplyToThriftConverter,
               ThriftToGetTrainsCommandReplyConverter, Domain::GetTrainsCommandReply>("GetTrainsCommandReply"),
        Record<Generated::GoIdleCommandParams, GoIdleCommandParamsToThriftConverter,
               ThriftToGoIdleCommandParamsConverter, Domain::GoIdleCommandParams>("GoIdleCommandParams"),
        Record<Generated::LiveCommandParams, LiveCommandParamsToThriftConverter, ThriftToLiveCommandParamsConverter,
               Domain::LiveCommandParams>("LiveCommandParams"),
        Record<Generated::LoadClipCommandParam>("LoadClipCommandParam"),
        Record<Generated::LoadClipsCommandParams, LoadClipsCommandParamsToThriftConverter,
               ThriftToLoadClipsCommandParamsConverter, Domain::LoadClipsCommandParams>("LoadClipsCommandParams"),
        Record<Generated::LoadSequenceCommandParam>("LoadSequenceCommandParam"),
        Record<Generated::LoadSequencesCommandParams, LoadSequencesCommandParamsToThriftConverter,
               ThriftToLoadSequencesCommandParamsConverter, Domain::LoadSequencesCommandParams>(
            "LoadSequencesCommandParams"),
        Record<Generated::PingCommandParams, PingCommandParamsToThriftConverter, ThriftToPingCommandParamsConverter,
               Domain::PingCommandParams>("PingCommandParams"),
        Record<Generated::PlayCommandParams, PlayCommandParamsToThriftConverter, ThriftToPlayCommandParamsConverter,
               Domain::PlayCommandParams>("PlayCommandParams"),
        Record<Generated::PlaylistCommandReply, PlaylistCommandReplyToThriftConverter,
               ThriftToPlaylistCommandReplyConverter, Domain::PlaylistCommandReply,
               &NewReply<Generated::PlaylistCommandReply, Domain::PlaylistCommandReply>>("PlaylistCommandReply"),
        Record<Generated::PlaylistResultsItem, PlaylistResultsItemToThriftConverter,
               ThriftToPlaylistResultsItemConverter, Domain::PlaylistResultsItem>("PlaylistResultsItem"),
        Record<Generated::SetLoadBoundariesCommandParam>("SetLoadBoundariesCommandParam"),
        Record<Generated::SetLoadBoundariesCommandParams, SetLoadBoundariesCommandParamsToThriftConverter,
               ThriftToSetLoadBoundariesCommandParamsConverter, Domain::SetLoadBoundariesCommandParams>(
            "SetLoadBoundariesCommandParams"),
        Record<Generated::SetMultiviewerDataCommandParams, SetMultiviewerDataCommandParamsToThriftConverter,
               ThriftToSetMultiviewerDataCommandParamsConverter, Domain::SetMultiviewerDataCommandParams>(
            "SetMultiviewerDataCommandParams"),
        Record<Generated::StartRecordingCommandParams, StartRecordingCommandParamsToThriftConverter,
               ThriftToStartRecordingCommandParamsConverter, Domain::StartCommandParams>("StartRecordingCommandParams"),
        Record<Generated::StepCommandParams, StepCommandParamsToThriftConverter, ThriftToStepCommandParamsConverter,
               Domain::StepCommandParams>("StepCommandParams"),
        Record<Generated::StopRecordingCommandParams, StopRecordingCommandParamsToThriftConverter,
               ThriftToStopRecordingCommandParamsConverter, Domain::StopCommandParams>("StopRecordingCommandParams"),
        Record<Generated::SuccessReply, SuccessReplyToThriftConverter, ThriftToSuccessReplyConverter,
               Domain::SuccessReply>("SuccessReply"),
        Record<Generated::SyncCommandParams, SyncCommandParamsToThriftConverter, ThriftToSyncCommandParamsConverter,
               Domain::SyncCommandParams>("SyncCommandParams"),
        Record<Generated::UnknownCommandReply, UnknownCommandReplyToThriftConverter,
               ThriftToUnknownCommandReplyConverter, Domain::UnknownCommandReply,
               &NewReply<Generated::UnknownCommandReply, Domain::UnknownCommandReply>>("UnknownCommandReply"),
        Record<Generated::UpdateAnglesGroupCommandParams, UpdateAnglesGroupCommandParamsToThriftConverter,
               ThriftToUpdateAnglesGroupCommandParamsConverter, Domain::UpdateAnglesGroupCommandParams>(
            "UpdateAnglesGroupCommandParams"),
        Record<Generated::UpdateClipParams>("UpdateClipParams"),
        Record<Generated::UpdateClipsCommandParams, UpdateClipsCommandParamsToThriftConverter,
               ThriftToUpdateClipsCommandParamsConverter, Domain::UpdateClipsCommandParams>("UpdateClipsCommandParams"),
        Record<Generated::UpdatePlaylistParams>("UpdatePlaylistParams"),
        Record<Generated::UpdatePlaylistsCommandParams, UpdatePlaylistsCommandParamsToThriftConverter,
               ThriftToUpdatePlaylistsCommandParamsConverter, Domain::UpdatePlaylistsCommandParams>(
            "UpdatePlaylistsCommandParams"),
    };
}

} // namespace Talvo::Tools
