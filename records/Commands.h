#pragma once

#include "records/Pairs.h"

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
#include "Thrift/Commands.h"

namespace Talvo::Records
{

constexpr auto CommandPairs()
{
    using namespace Corvane::Zelmar::Serialization::Thrift::Commands;
    return PairList<
        Pair<AnglesGroupCommandReplyToThriftConverter, ThriftToAnglesGroupCommandReplyConverter>,
        Pair<ChainCommandParamsToThriftConverter, ThriftToChainCommandParamsConverter>,
        Pair<ChannelCommandReplyToThriftConverter, ThriftToChannelCommandReplyConverter>,
        Pair<ClipCommandReplyToThriftConverter, ThriftToClipCommandReplyConverter>,
        Pair<ClipResultsItemToThriftConverter, ThriftToClipResultsItemConverter>,
        Pair<CreateAnglesGroupCommandParamsToThriftConverter, ThriftToCreateAnglesGroupCommandParamsConverter>,
        Pair<CreateClipsCommandParamsToThriftConverter, ThriftToCreateClipsCommandParamsConverter>,
        Pair<CreatePlaylistsCommandParamsToThriftConverter, ThriftToCreatePlaylistsCommandParamsConverter>,
        Pair<DeleteAnglesGroupCommandParamsToThriftConverter, ThriftToDeleteAnglesGroupCommandParamsConverter>,
        Pair<DeleteClipsCommandParamsToThriftConverter, ThriftToDeleteClipsCommandParamsConverter>,
        Pair<DeletePlaylistsCommandParamsToThriftConverter, ThriftToDeletePlaylistsCommandParamsConverter>,
        Pair<DialCommandParamsToThriftConverter, ThriftToDialCommandParamsConverter>,
        Pair<FailureReplyToThriftConverter, ThriftToFailureReplyConverter>,
        Pair<GetAnglesGroupsCommandParamsToThriftConverter, ThriftToGetAnglesGroupsCommandParamsConverter>,
        Pair<GetAnglesGroupsCommandReplyToThriftConverter, ThriftToGetAnglesGroupsCommandReplyConverter>,
        Pair<GetChannelsCommandParamsToThriftConverter, ThriftToGetChannelsCommandParamsConverter>,
        Pair<GetChannelsCommandReplyToThriftConverter, GetChannelsCommandReplyFromThriftConverter>,
        Pair<GetClipsCommandParamsToThriftConverter, ThriftToGetClipsCommandParamsConverter>,
        Pair<GetClipsCommandReplyToThriftConverter, ThriftToGetClipsCommandReplyConverter>,
        Pair<GetMultiviewerDataCommandParamsToThriftConverter, ThriftToGetMultiviewerDataCommandParamsConverter>,
        Pair<GetMultiviewerDataCommandReplyToThriftConverter, ThriftToGetMultiviewerDataCommandReplyConverter>,
        Pair<GetPlaylistsCommandParamsToThriftConverter, ThriftToGetPlaylistsCommandParamsConverter>,
        Pair<GetPlaylistsCommandReplyToThriftConverter, ThriftToGetPlaylistsCommandReplyConverter>,
        Pair<GetServersCommandParamsToThriftConverter, ThriftToGetServersCommandParamsConverter>,
        Pair<GetServersCommandReplyToThriftConverter, ThriftToGetServersCommandReplyConverter>,
        Pair<GetTrainsCommandParamsToThriftConverter, ThriftToGetTrainsCommandParamsConverter>,
        Pair<GetTrainsCommandReplyToThriftConverter, ThriftToGetTrainsCommandReplyConverter>,
        Pair<GoIdleCommandParamsToThriftConverter, ThriftToGoIdleCommandParamsConverter>,
        Pair<LiveCommandParamsToThriftConverter, ThriftToLiveCommandParamsConverter>,
        Pair<LoadClipsCommandParamsToThriftConverter, ThriftToLoadClipsCommandParamsConverter>,
        Pair<LoadSequencesCommandParamsToThriftConverter, ThriftToLoadSequencesCommandParamsConverter>,
        Pair<PingCommandParamsToThriftConverter, ThriftToPingCommandParamsConverter>,
        Pair<PlayCommandParamsToThriftConverter, ThriftToPlayCommandParamsConverter>,
        Pair<PlaylistCommandReplyToThriftConverter, ThriftToPlaylistCommandReplyConverter>,
        Pair<PlaylistResultsItemToThriftConverter, ThriftToPlaylistResultsItemConverter>,
        Pair<SetLoadBoundariesCommandParamsToThriftConverter, ThriftToSetLoadBoundariesCommandParamsConverter>,
        Pair<SetMultiviewerDataCommandParamsToThriftConverter, ThriftToSetMultiviewerDataCommandParamsConverter>,
        Pair<StartRecordingCommandParamsToThriftConverter, ThriftToStartRecordingCommandParamsConverter>,
        Pair<StepCommandParamsToThriftConverter, ThriftToStepCommandParamsConverter>,
        Pair<StopRecordingCommandParamsToThriftConverter, ThriftToStopRecordingCommandParamsConverter>,
        Pair<SuccessReplyToThriftConverter, ThriftToSuccessReplyConverter>,
        Pair<SyncCommandParamsToThriftConverter, ThriftToSyncCommandParamsConverter>,
        Pair<UnknownCommandReplyToThriftConverter, ThriftToUnknownCommandReplyConverter>,
        Pair<UpdateAnglesGroupCommandParamsToThriftConverter, ThriftToUpdateAnglesGroupCommandParamsConverter>,
        Pair<UpdateClipsCommandParamsToThriftConverter, ThriftToUpdateClipsCommandParamsConverter>,
        Pair<UpdatePlaylistsCommandParamsToThriftConverter, ThriftToUpdatePlaylistsCommandParamsConverter>>();
}

} // namespace Talvo::Records
