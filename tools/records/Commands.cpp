#include "tools/RecordTypes.h"

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

namespace Talvo::Tools
{

std::vector<RecordType> CommandRecords()
{
    using namespace Corvane::Zelmar::Serialization::Thrift::Commands;

    return {
        Record<Generated::AnglesGroupCommandReply>("AnglesGroupCommandReply"),
        Record<Generated::ChainCommandParams>("ChainCommandParams"),
        Record<Generated::ChannelCommandReply>("ChannelCommandReply"),
        Record<Generated::ChannelResult>("ChannelResult"),
        Record<Generated::ClipCommandReply>("ClipCommandReply"),
        Record<Generated::ClipResultsItem>("ClipResultsItem"),
        Record<Generated::CreateAnglesGroupCommandParams>("CreateAnglesGroupCommandParams"),
        Record<Generated::CreateClipParams>("CreateClipParams"),
        Record<Generated::CreateClipsCommandParams>("CreateClipsCommandParams"),
        Record<Generated::CreatePlaylistsCommandParams>("CreatePlaylistsCommandParams"),
        Record<Generated::DeleteAnglesGroupCommandParams>("DeleteAnglesGroupCommandParams"),
        Record<Generated::DeleteClipsCommandParams>("DeleteClipsCommandParams"),
        Record<Generated::DeletePlaylistsCommandParams>("DeletePlaylistsCommandParams"),
        Record<Generated::DialCommandParams>("DialCommandParams"),
        Record<Generated::FailureReply>("FailureReply"),
        Record<Generated::GetAnglesGroupsCommandParams>("GetAnglesGroupsCommandParams"),
        Record<Generated::GetAnglesGroupsCommandReply>("GetAnglesGroupsCommandReply"),
        Record<Generated::GetChannelsCommandParams>("GetChannelsCommandParams"),
        Record<Generated::GetChannelsCommandReply>("GetChannelsCommandReply"),
        Record<Generated::GetClipsCommandParams>("GetClipsCommandParams"),
        Record<Generated::GetClipsCommandReply>("GetClipsCommandReply"),
        Record<Generated::GetMultiviewerDataCommandParams>("GetMultiviewerDataCommandParams"),
        Record<Generated::GetMultiviewerDataCommandReply>("GetMultiviewerDataCommandReply"),
        Record<Generated::GetPlaylistsCommandParams>("GetPlaylistsCommandParams"),
        Record<Generated::GetPlaylistsCommandReply>("GetPlaylistsCommandReply"),
        Record<Generated::GetServersCommandParams>("GetServersCommandParams"),
        Record<Generated::GetServersCommandReply>("GetServersCommandReply"),
        Record<Generated::GetTrainsCommandParams>("GetTrainsCommandParams"),
        Record<Generated::GetTrainsCommandReply>("GetTrainsCommandReply"),
        Record<Generated::GoIdleCommandParams>("GoIdleCommandParams"),
        Record<Generated::LiveCommandParams>("LiveCommandParams"),
        Record<Generated::LoadClipCommandParam>("LoadClipCommandParam"),
        Record<Generated::LoadClipsCommandParams>("LoadClipsCommandParams"),
        Record<Generated::LoadSequenceCommandParam>("LoadSequenceCommandParam"),
        Record<Generated::LoadSequencesCommandParams>("LoadSequencesCommandParams"),
        Record<Generated::PingCommandParams>("PingCommandParams"),
        Record<Generated::PlayCommandParams>("PlayCommandParams"),
        Record<Generated::PlaylistCommandReply>("PlaylistCommandReply"),
        Record<Generated::PlaylistResultsItem>("PlaylistResultsItem"),
        Record<Generated::SetLoadBoundariesCommandParam>("SetLoadBoundariesCommandParam"),
        Record<Generated::SetLoadBoundariesCommandParams>("SetLoadBoundariesCommandParams"),
        Record<Generated::SetMultiviewerDataCommandParams>("SetMultiviewerDataCommandParams"),
        Record<Generated::StartRecordingCommandParams>("StartRecordingCommandParams"),
        Record<Generated::StepCommandParams>("StepCommandParams"),
        Record<Generated::StopRecordingCommandParams>("StopRecordingCommandParams"),
        Record<Generated::SuccessReply>("SuccessReply"),
        Record<Generated::SyncCommandParams>("SyncCommandParams"),
        Record<Generated::UnknownCommandReply>("UnknownCommandReply"),
        Record<Generated::UpdateAnglesGroupCommandParams>("UpdateAnglesGroupCommandParams"),
        Record<Generated::UpdateClipParams>("UpdateClipParams"),
        Record<Generated::UpdateClipsCommandParams>("UpdateClipsCommandParams"),
        Record<Generated::UpdatePlaylistParams>("UpdatePlaylistParams"),
        Record<Generated::UpdatePlaylistsCommandParams>("UpdatePlaylistsCommandParams"),
    };
}

} // namespace Talvo::Tools
