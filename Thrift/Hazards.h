#pragma once

#include <string>
#include <vector>

namespace Talvo::Corvane::Data::Generated
{
class Guid;
class MultiviewerDataOverrides;
class OperationStatus;
class PlayerDataOverrides;
} // namespace Talvo::Corvane::Data::Generated

namespace Talvo::Corvane::Data::Clips::Groups::Generated
{
class Angle;
class AnglesGroup;
} // namespace Talvo::Corvane::Data::Clips::Groups::Generated

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips::Generated
{
class Clip;
class Essence;
class RecordingRange;
class Train;
} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Clips::Generated

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels::Generated
{
class LoadBoundary;
class PlayerClipOnAir;
class PlayerState;
class RecorderState;
} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Channels::Generated

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Servers::Generated
{
class ServerInfo;
} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Servers::Generated

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences::Generated
{
class AudioVideoElement;
class AudioVideoTrack;
class Element;
class Playlist;
class Sequence;
class SequenceId;
class Tag;
class TagProperty;
} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences::Generated

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands::Generated
{
class AnglesGroupCommandReply;
class ChainCommandParams;
class ChannelCommandReply;
class ClipCommandReply;
class ClipResultsItem;
class CreateAnglesGroupCommandParams;
class CreateClipsCommandParams;
class CreatePlaylistsCommandParams;
class DeleteAnglesGroupCommandParams;
class DeleteClipsCommandParams;
class DeletePlaylistsCommandParams;
class DialCommandParams;
class FailureReply;
class GetAnglesGroupsCommandParams;
class GetAnglesGroupsCommandReply;
class GetChannelsCommandParams;
class GetChannelsCommandReply;
class GetClipsCommandParams;
class GetClipsCommandReply;
class GetMultiviewerDataCommandParams;
class GetMultiviewerDataCommandReply;
class GetPlaylistsCommandParams;
class GetPlaylistsCommandReply;
class GetServersCommandParams;
class GetServersCommandReply;
class GetTrainsCommandParams;
class GetTrainsCommandReply;
class GoIdleCommandParams;
class LiveCommandParams;
class LoadClipsCommandParams;
class LoadSequencesCommandParams;
class PingCommandParams;
class PlayCommandParams;
class PlaylistCommandReply;
class PlaylistResultsItem;
class SetLoadBoundariesCommandParams;
class SetMultiviewerDataCommandParams;
class StartRecordingCommandParams;
class StepCommandParams;
class StopRecordingCommandParams;
class SuccessReply;
class SyncCommandParams;
class UnknownCommandReply;
class UpdateAnglesGroupCommandParams;
class UpdateClipsCommandParams;
class UpdatePlaylistsCommandParams;
} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands::Generated

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier::Generated
{
class AnglesGroupCreationEventArgs;
class AnglesGroupCreationFinishedEventArgs;
class AnglesGroupDeletionFinishedEventArgs;
class AnglesGroupUpdateFinishedEventArgs;
class ClipCommandEventArgs;
class ClipCreationFailedEventArgs;
class ClipCreationFinishedEventArgs;
class ClipCreationStartedEventArgs;
class ClipDeletionFailedEventArgs;
class ClipDeletionFinishedEventArgs;
class ClipMoveFailedEventArgs;
class ClipMoveFinishedEventArgs;
class ClipMoveStartedEventArgs;
class ClipUpdateFailedEventArgs;
class ClipUpdateFinishedEventArgs;
class DisconnectedFromNetworkEventArgs;
class MassClipDeletionFailedEventArgs;
class MassClipDeletionFinishedEventArgs;
class MassClipUpdateFailedEventArgs;
class MassClipUpdateFinishedEventArgs;
class PlayerStateChangedEventArgs;
class RecorderStateChangedEventArgs;
class RecordingRangesChangedEventArgs;
class ServerAddedEventArgs;
class ServerRemovedEventArgs;
} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Notifier::Generated

namespace Talvo::Corvane::Zelmar::Serialization::Thrift
{

/// A value of a wire record that would end the process inside a converter.
struct Hazard
{
    /// The field, from the record on: `clips[3].clip.inBoundTodTimecode`. Entries of a map stand under their keys, raw
    /// bytes that can't be printed as `\x1f`: `players["\x00A..."].pgmOnAir.todCurTimecodeOnAir`.
    std::string path;

    /// What is wrong with the value, in the words of what would be thrown. It may repeat the peer's text as it is.
    std::string reason;

    bool operator==(Hazard const&) const = default;
};

/// @name Hazards
///
/// Some values that a peer can send end the process, since a converter never throws: the time codes of a clip and of a
/// clip on air that are none, the reference time code of a sequence that has the form of a time code but names none,
/// and locations below 0 or above 109. Whoever reads records from peers that are not trusted asks here first, and
/// refuses those that hold one.
///
/// Where FindHazards() returns nothing, the converter of the record returns, whatever its destination held (an
/// allocation that fails aside, and a system without random bytes for the new identifiers that two converters draw).
/// What it returns would end the process as soon as the converter reaches the field, which an earlier failure may keep
/// it from. A field that the converter does not read is no hazard: most are read by their flag, those whose converter
/// reads them whatever their flag says are looked into without it. A record whose result its converter drops is looked
/// into all the same. Nothing is allocated for a record whose time codes are good.
/// @{

/// What would end the process inside the converter of the record.
std::vector<Hazard> FindHazards(Corvane::Data::Generated::Guid const& record);
std::vector<Hazard> FindHazards(Corvane::Data::Generated::MultiviewerDataOverrides const& record);
std::vector<Hazard> FindHazards(Corvane::Data::Generated::OperationStatus const& record);
std::vector<Hazard> FindHazards(Corvane::Data::Generated::PlayerDataOverrides const& record);

std::vector<Hazard> FindHazards(Corvane::Data::Clips::Groups::Generated::Angle const& record);
std::vector<Hazard> FindHazards(Corvane::Data::Clips::Groups::Generated::AnglesGroup const& record);

std::vector<Hazard> FindHazards(Data::Clips::Generated::Clip const& record);
std::vector<Hazard> FindHazards(Data::Clips::Generated::Essence const& record);
std::vector<Hazard> FindHazards(Data::Clips::Generated::RecordingRange const& record);
std::vector<Hazard> FindHazards(Data::Clips::Generated::Train const& record);

std::vector<Hazard> FindHazards(Data::Channels::Generated::LoadBoundary const& record);
std::vector<Hazard> FindHazards(Data::Channels::Generated::PlayerClipOnAir const& record);
std::vector<Hazard> FindHazards(Data::Channels::Generated::PlayerState const& record);
std::vector<Hazard> FindHazards(Data::Channels::Generated::RecorderState const& record);

std::vector<Hazard> FindHazards(Data::Servers::Generated::ServerInfo const& record);

std::vector<Hazard> FindHazards(Data::Sequences::Generated::AudioVideoElement const& record);
std::vector<Hazard> FindHazards(Data::Sequences::Generated::AudioVideoTrack const& record);
std::vector<Hazard> FindHazards(Data::Sequences::Generated::Element const& record);
std::vector<Hazard> FindHazards(Data::Sequences::Generated::Playlist const& record);
std::vector<Hazard> FindHazards(Data::Sequences::Generated::Sequence const& record);
std::vector<Hazard> FindHazards(Data::Sequences::Generated::SequenceId const& record);
std::vector<Hazard> FindHazards(Data::Sequences::Generated::Tag const& record);
std::vector<Hazard> FindHazards(Data::Sequences::Generated::TagProperty const& record);

std::vector<Hazard> FindHazards(Commands::Generated::AnglesGroupCommandReply const& record);
std::vector<Hazard> FindHazards(Commands::Generated::ChainCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::ChannelCommandReply const& record);
std::vector<Hazard> FindHazards(Commands::Generated::ClipCommandReply const& record);
std::vector<Hazard> FindHazards(Commands::Generated::ClipResultsItem const& record);
std::vector<Hazard> FindHazards(Commands::Generated::CreateAnglesGroupCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::CreateClipsCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::CreatePlaylistsCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::DeleteAnglesGroupCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::DeleteClipsCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::DeletePlaylistsCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::DialCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::FailureReply const& record);
std::vector<Hazard> FindHazards(Commands::Generated::GetAnglesGroupsCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::GetAnglesGroupsCommandReply const& record);
std::vector<Hazard> FindHazards(Commands::Generated::GetChannelsCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::GetChannelsCommandReply const& record);
std::vector<Hazard> FindHazards(Commands::Generated::GetClipsCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::GetClipsCommandReply const& record);
std::vector<Hazard> FindHazards(Commands::Generated::GetMultiviewerDataCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::GetMultiviewerDataCommandReply const& record);
std::vector<Hazard> FindHazards(Commands::Generated::GetPlaylistsCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::GetPlaylistsCommandReply const& record);
std::vector<Hazard> FindHazards(Commands::Generated::GetServersCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::GetServersCommandReply const& record);
std::vector<Hazard> FindHazards(Commands::Generated::GetTrainsCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::GetTrainsCommandReply const& record);
std::vector<Hazard> FindHazards(Commands::Generated::GoIdleCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::LiveCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::LoadClipsCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::LoadSequencesCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::PingCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::PlayCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::PlaylistCommandReply const& record);
std::vector<Hazard> FindHazards(Commands::Generated::PlaylistResultsItem const& record);
std::vector<Hazard> FindHazards(Commands::Generated::SetLoadBoundariesCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::SetMultiviewerDataCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::StartRecordingCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::StepCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::StopRecordingCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::SuccessReply const& record);
std::vector<Hazard> FindHazards(Commands::Generated::SyncCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::UnknownCommandReply const& record);
std::vector<Hazard> FindHazards(Commands::Generated::UpdateAnglesGroupCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::UpdateClipsCommandParams const& record);
std::vector<Hazard> FindHazards(Commands::Generated::UpdatePlaylistsCommandParams const& record);

std::vector<Hazard> FindHazards(Notifier::Generated::AnglesGroupCreationEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::AnglesGroupCreationFinishedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::AnglesGroupDeletionFinishedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::AnglesGroupUpdateFinishedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::ClipCommandEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::ClipCreationFailedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::ClipCreationFinishedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::ClipCreationStartedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::ClipDeletionFailedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::ClipDeletionFinishedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::ClipMoveFailedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::ClipMoveFinishedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::ClipMoveStartedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::ClipUpdateFailedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::ClipUpdateFinishedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::DisconnectedFromNetworkEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::MassClipDeletionFailedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::MassClipDeletionFinishedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::MassClipUpdateFailedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::MassClipUpdateFinishedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::PlayerStateChangedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::RecorderStateChangedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::RecordingRangesChangedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::ServerAddedEventArgs const& record);
std::vector<Hazard> FindHazards(Notifier::Generated::ServerRemovedEventArgs const& record);

/// @}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift
