#include "Thrift/Hazards.h"

#include "Domain/CorvaneData/Sequences/SequenceId.h"
#include "TimePoints/TalvoTimeCodeParser.h"
#include "TimePoints/TimeCodeText.h"
#include "generated/AnglesGroupCommandReply_types.h"
#include "generated/AudioVideoElement_types.h"
#include "generated/AudioVideoTrack_types.h"
#include "generated/ClipCommandReply_types.h"
#include "generated/ClipCreationEventArgs_types.h"
#include "generated/ClipDeletionEventArgs_types.h"
#include "generated/ClipMoveEventArgs_types.h"
#include "generated/ClipResultsItem_types.h"
#include "generated/ClipUpdateEventArgs_types.h"
#include "generated/Clip_types.h"
#include "generated/CreateAnglesGroupCommandParams_types.h"
#include "generated/CreateClipsCommandParams_types.h"
#include "generated/CreatePlaylistsCommandParams_types.h"
#include "generated/Element_types.h"
#include "generated/GetChannelsCommandReply_types.h"
#include "generated/GetClipsCommandReply_types.h"
#include "generated/GetPlaylistsCommandReply_types.h"
#include "generated/GetTrainsCommandReply_types.h"
#include "generated/PlayerClipOnAir_types.h"
#include "generated/PlayerStateChangedEA_types.h"
#include "generated/PlayerState_types.h"
#include "generated/PlaylistCommandReply_types.h"
#include "generated/PlaylistResultsItem_types.h"
#include "generated/Playlist_types.h"
#include "generated/RecorderStateChangedEA_types.h"
#include "generated/RecorderState_types.h"
#include "generated/SequenceId_types.h"
#include "generated/Sequence_types.h"
#include "generated/Train_types.h"
#include "generated/UpdateClipsCommandParams_types.h"
#include "generated/UpdatePlaylistsCommandParams_types.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <type_traits>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift
{

namespace
{

/// Where the search is; a text is made of it only where a hazard was found.
struct Path
{
    Path const* outer = nullptr;
    std::string_view field = {};
    std::optional<std::size_t> index = {};
    std::string const* key = nullptr;

    Path operator/(std::string_view const name) const { return {this, name, {}, nullptr}; }
    Path operator[](std::size_t const element) const { return {this, {}, element, nullptr}; }
    Path operator[](std::string const& mapKey) const { return {this, {}, {}, &mapKey}; }

    std::string Text() const
    {
        if (outer == nullptr) return {};
        auto text = outer->Text();
        if (index) return text + '[' + std::to_string(*index) + ']';
        if (key != nullptr) return text + "[\"" + Printable(*key) + "\"]";
        if (!text.empty()) text += '.';
        return text.append(field);
    }

    static std::string Printable(std::string const& bytes)
    {
        constexpr std::string_view digits = "0123456789abcdef";
        std::string text;
        for (auto const byte : bytes)
        {
            auto const number = static_cast<unsigned char>(byte);
            if (number >= 0x20 && number < 0x7f && byte != '"' && byte != '\\')
                text += byte;
            else
                text.append("\\x").append(1, digits[number >> 4]).append(1, digits[number & 15]);
        }
        return text;
    }
};

using Hazards = std::vector<Hazard>;

/// A time code that is read unguarded: every text that is none is a hazard.
void FindUnguarded(Hazards& hazards, Path const& path, std::string const& text)
{
    if (TimePoints::ReadTimeCode(text)) return;
    try
    {
        TimePoints::TalvoTimeCodeParser().Parse(text);
    }
    catch (std::exception const& error)
    {
        hazards.push_back({path.Text(), error.what()});
    }
}

/// A time code of which only the form is caught: a text in the form of a time code that names none is a hazard.
void FindHalfGuarded(Hazards& hazards, Path const& path, std::string const& text)
{
    if (TimePoints::ReadTimeCode(text)) return;
    try
    {
        TimePoints::TalvoTimeCodeParser().Parse(text);
    }
    catch (std::invalid_argument const&)
    {
    }
    catch (std::exception const& error)
    {
        hazards.push_back({path.Text(), error.what()});
    }
}

void FindLocation(Hazards& hazards, Path const& path, std::int32_t const location)
{
    if (static_cast<std::uint32_t>(location) > Corvane::Data::Sequences::SequenceId::MaxLocation)
        hazards.push_back({path.Text(), "SequenceId.Location : invalid location number"});
}

void Find(Hazards& hazards, Path const& path, Data::Clips::Generated::Clip const& record)
{
    auto const& isset = record.__isset;
    if (isset.inBoundTodTimecode) FindUnguarded(hazards, path / "inBoundTodTimecode", record.inBoundTodTimecode);
    if (isset.inBoundUserTimecode) FindUnguarded(hazards, path / "inBoundUserTimecode", record.inBoundUserTimecode);
}

void Find(Hazards& hazards, Path const& path, Data::Clips::Generated::Train const& record)
{
    if (record.__isset.trainData) Find(hazards, path / "trainData", record.trainData);
}

void Find(Hazards& hazards, Path const& path, Data::Channels::Generated::PlayerClipOnAir const& record)
{
    auto const& isset = record.__isset;
    if (isset.clipOnAir) Find(hazards, path / "clipOnAir", record.clipOnAir);
    if (isset.todCurTimecodeOnAir) FindUnguarded(hazards, path / "todCurTimecodeOnAir", record.todCurTimecodeOnAir);
    if (isset.userCurTimecodeOnAir) FindUnguarded(hazards, path / "userCurTimecodeOnAir", record.userCurTimecodeOnAir);
}

void Find(Hazards& hazards, Path const& path, Data::Channels::Generated::PlayerState const& record)
{
    if (record.__isset.pgmOnAir) Find(hazards, path / "pgmOnAir", record.pgmOnAir);
    if (record.__isset.previewOnAir) Find(hazards, path / "previewOnAir", record.previewOnAir);
}

void Find(Hazards& hazards, Path const& path, Data::Channels::Generated::RecorderState const& record)
{
    if (record.__isset.recorderTrain) Find(hazards, path / "recorderTrain", record.recorderTrain);
}

void Find(Hazards& hazards, Path const& path, Data::Sequences::Generated::SequenceId const& record)
{
    if (record.__isset.location) FindLocation(hazards, path / "location", record.location);
}

void Find(Hazards& hazards, Path const& path, Data::Sequences::Generated::Sequence const& record)
{
    auto const& isset = record.__isset;
    if (isset.id) FindLocation(hazards, path / "id" / "location", record.id.location); // whatever its own flag says
    if (isset.timeCodeRegenReference)
        FindHalfGuarded(hazards, path / "timeCodeRegenReference", record.timeCodeRegenReference);
}

void Find(Hazards& hazards, Path const& path, Data::Sequences::Generated::Element const& record)
{
    if (record.__isset.sequenceId) Find(hazards, path / "sequenceId", record.sequenceId);
}

void Find(Hazards& hazards, Path const& path, Data::Sequences::Generated::AudioVideoElement const& record)
{
    if (record.__isset.element) Find(hazards, path / "element", record.element);
}

/// Each element of a list.
template<typename TRecord>
void FindInEach(Hazards& hazards, Path const& path, std::vector<TRecord> const& records);

void Find(Hazards& hazards, Path const& path, Data::Sequences::Generated::AudioVideoTrack const& record)
{
    if (record.__isset.elements) FindInEach(hazards, path / "elements", record.elements);
}

void Find(Hazards& hazards, Path const& path, Data::Sequences::Generated::Playlist const& record)
{
    if (record.__isset.audioVideoTrack) Find(hazards, path / "audioVideoTrack", record.audioVideoTrack);
    if (record.__isset.sequence) Find(hazards, path / "sequence", record.sequence);
}

// The records in the lists of commands, whose flags no converter reads.

void Find(Hazards& hazards, Path const& path, Commands::Generated::CreateClipParams const& record)
{
    Find(hazards, path / "clip", record.clip);
}

void Find(Hazards& hazards, Path const& path, Commands::Generated::UpdateClipParams const& record)
{
    Find(hazards, path / "oldClip", record.oldClip);
    Find(hazards, path / "newClip", record.newClip);
}

void Find(Hazards& hazards, Path const& path, Commands::Generated::UpdatePlaylistParams const& record)
{
    Find(hazards, path / "oldPlaylist", record.oldPlaylist);
    Find(hazards, path / "newPlaylist", record.newPlaylist);
}

void Find(Hazards& hazards, Path const& path, Commands::Generated::CreateClipsCommandParams const& record)
{
    if (record.__isset.clips) FindInEach(hazards, path / "clips", record.clips);
}

void Find(Hazards& hazards, Path const& path, Commands::Generated::UpdateClipsCommandParams const& record)
{
    if (record.__isset.clips) FindInEach(hazards, path / "clips", record.clips);
}

void Find(Hazards& hazards, Path const& path, Commands::Generated::CreatePlaylistsCommandParams const& record)
{
    if (record.__isset.playlists) FindInEach(hazards, path / "playlists", record.playlists);
}

void Find(Hazards& hazards, Path const& path, Commands::Generated::UpdatePlaylistsCommandParams const& record)
{
    if (record.__isset.params) FindInEach(hazards, path / "params", record.params);
}

void Find(Hazards& hazards, Path const& path, Commands::Generated::GetClipsCommandReply const& record)
{
    if (record.__isset.clips) FindInEach(hazards, path / "clips", record.clips);
}

void Find(Hazards& hazards, Path const& path, Commands::Generated::GetTrainsCommandReply const& record)
{
    if (record.__isset.trains) FindInEach(hazards, path / "trains", record.trains);
}

void Find(Hazards& hazards, Path const& path, Commands::Generated::GetPlaylistsCommandReply const& record)
{
    if (record.__isset.playlists) FindInEach(hazards, path / "playlists", record.playlists);
}

void Find(Hazards& hazards, Path const& path, Commands::Generated::CreateAnglesGroupCommandParams const& record)
{
    Find(hazards, path / "creationParams", record.creationParams); // whatever its flag says
}

void Find(Hazards& hazards, Path const& path, Commands::Generated::ClipResultsItem const& record)
{
    if (record.__isset.clip) Find(hazards, path / "clip", record.clip);
}

void Find(Hazards& hazards, Path const& path, Commands::Generated::PlaylistResultsItem const& record)
{
    if (record.__isset.playlist) Find(hazards, path / "playlist", record.playlist);
}

void Find(Hazards& hazards, Path const& path, Commands::Generated::ClipCommandReply const& record)
{
    if (record.__isset.guid && record.__isset.results) FindInEach(hazards, path / "results", record.results);
}

void Find(Hazards& hazards, Path const& path, Commands::Generated::PlaylistCommandReply const& record)
{
    if (record.__isset.guid && record.__isset.results) FindInEach(hazards, path / "results", record.results);
}

void Find(Hazards& hazards, Path const& path, Commands::Generated::AnglesGroupCommandReply const& record)
{
    auto const& isset = record.__isset;
    if (isset.commandGuid && isset.groupGuid && isset.clipCommandReply)
        Find(hazards, path / "clipCommandReply", record.clipCommandReply);
}

void Find(Hazards& hazards, Path const& path, Commands::Generated::GetChannelsCommandReply const& record)
{
    // No flag is read.
    auto const players = path / "players";
    for (auto const& [channel, state] : record.players) Find(hazards, players[channel.value], state);
    auto const recorders = path / "recorders";
    for (auto const& [channel, state] : record.recorders) Find(hazards, recorders[channel.value], state);
}

// An event without all of its required flags is refused before its clips are read.

void Find(Hazards& hazards, Path const& path, Notifier::Generated::ClipCreationStartedEventArgs const& record)
{
    auto const& isset = record.__isset;
    if (!(isset.clipCommand && isset.sourceClip && isset.newClip && isset.creationType && isset.networkType)) return;
    Find(hazards, path / "sourceClip", record.sourceClip);
    Find(hazards, path / "newClip", record.newClip);
}

void Find(Hazards& hazards, Path const& path, Notifier::Generated::ClipCreationFinishedEventArgs const& record)
{
    auto const& isset = record.__isset;
    if (!(isset.clipCommand && isset.sourceClip && isset.newClip && isset.creationType && isset.networkType)) return;
    Find(hazards, path / "sourceClip", record.sourceClip);
    Find(hazards, path / "newClip", record.newClip);
}

void Find(Hazards& hazards, Path const& path, Notifier::Generated::ClipCreationFailedEventArgs const& record)
{
    auto const& isset = record.__isset;
    if (!(isset.clipCommand && isset.sourceClip && isset.newClip && isset.creationType && isset.networkType &&
          isset.result))
        return;
    Find(hazards, path / "sourceClip", record.sourceClip);
    Find(hazards, path / "newClip", record.newClip);
}

void Find(Hazards& hazards, Path const& path, Notifier::Generated::ClipUpdateFinishedEventArgs const& record)
{
    auto const& isset = record.__isset;
    if (!(isset.clipCommand && isset.endOfGrowingClipCreation && isset.oldClip && isset.newClip)) return;
    Find(hazards, path / "oldClip", record.oldClip);
    Find(hazards, path / "newClip", record.newClip);
}

void Find(Hazards& hazards, Path const& path, Notifier::Generated::ClipUpdateFailedEventArgs const& record)
{
    auto const& isset = record.__isset;
    if (!(isset.clipCommand && isset.result && isset.oldClip && isset.newClip)) return;
    Find(hazards, path / "oldClip", record.oldClip);
    Find(hazards, path / "newClip", record.newClip);
}

void Find(Hazards& hazards, Path const& path, Notifier::Generated::ClipDeletionFinishedEventArgs const& record)
{
    auto const& isset = record.__isset;
    if (!(isset.clipCommand && isset.removedClip)) return;
    Find(hazards, path / "removedClip", record.removedClip);
}

void Find(Hazards& hazards, Path const& path, Notifier::Generated::ClipDeletionFailedEventArgs const& record)
{
    auto const& isset = record.__isset;
    if (!(isset.clipCommand && isset.removedClip && isset.result && isset.essenceBitmap && isset.fromUCode &&
          isset.forceForPlaylist))
        return;
    Find(hazards, path / "removedClip", record.removedClip);
}

void Find(Hazards& hazards, Path const& path, Notifier::Generated::ClipMoveStartedEventArgs const& record)
{
    auto const& isset = record.__isset;
    if (!(isset.clipCommand && isset.sourceClip && isset.destClip)) return;
    Find(hazards, path / "sourceClip", record.sourceClip);
    Find(hazards, path / "destClip", record.destClip);
}

void Find(Hazards& hazards, Path const& path, Notifier::Generated::ClipMoveFinishedEventArgs const& record)
{
    auto const& isset = record.__isset;
    if (!(isset.clipCommand && isset.sourceClip && isset.destClip)) return;
    Find(hazards, path / "sourceClip", record.sourceClip);
    Find(hazards, path / "destClip", record.destClip);
}

void Find(Hazards& hazards, Path const& path, Notifier::Generated::ClipMoveFailedEventArgs const& record)
{
    auto const& isset = record.__isset;
    if (!(isset.clipCommand && isset.result && isset.sourceClip && isset.destClip)) return;
    Find(hazards, path / "sourceClip", record.sourceClip);
    Find(hazards, path / "destClip", record.destClip);
}

void Find(Hazards& hazards, Path const& path, Notifier::Generated::PlayerStateChangedEventArgs const& record)
{
    if (record.__isset.status) Find(hazards, path / "status", record.status);
}

void Find(Hazards& hazards, Path const& path, Notifier::Generated::RecorderStateChangedEventArgs const& record)
{
    if (record.__isset.status) Find(hazards, path / "status", record.status);
}

template<typename TRecord>
void FindInEach(Hazards& hazards, Path const& path, std::vector<TRecord> const& records)
{
    for (std::size_t i = 0; i < records.size(); ++i) Find(hazards, path[i], records[i]);
}

template<typename TRecord>
Hazards Found(TRecord const& record)
{
    Hazards hazards;
    Find(hazards, Path(), record);
    return hazards;
}

} // namespace

std::vector<Hazard> FindHazards(Data::Clips::Generated::Clip const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Data::Clips::Generated::Train const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Data::Channels::Generated::PlayerClipOnAir const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Data::Channels::Generated::PlayerState const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Data::Channels::Generated::RecorderState const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Data::Sequences::Generated::AudioVideoElement const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Data::Sequences::Generated::AudioVideoTrack const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Data::Sequences::Generated::Element const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Data::Sequences::Generated::Playlist const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Data::Sequences::Generated::Sequence const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Data::Sequences::Generated::SequenceId const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Commands::Generated::AnglesGroupCommandReply const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Commands::Generated::ClipCommandReply const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Commands::Generated::ClipResultsItem const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Commands::Generated::CreateAnglesGroupCommandParams const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Commands::Generated::CreateClipsCommandParams const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Commands::Generated::CreatePlaylistsCommandParams const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Commands::Generated::GetChannelsCommandReply const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Commands::Generated::GetClipsCommandReply const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Commands::Generated::GetPlaylistsCommandReply const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Commands::Generated::GetTrainsCommandReply const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Commands::Generated::PlaylistCommandReply const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Commands::Generated::PlaylistResultsItem const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Commands::Generated::UpdateClipsCommandParams const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Commands::Generated::UpdatePlaylistsCommandParams const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Notifier::Generated::ClipCreationFailedEventArgs const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Notifier::Generated::ClipCreationFinishedEventArgs const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Notifier::Generated::ClipCreationStartedEventArgs const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Notifier::Generated::ClipDeletionFailedEventArgs const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Notifier::Generated::ClipDeletionFinishedEventArgs const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Notifier::Generated::ClipMoveFailedEventArgs const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Notifier::Generated::ClipMoveFinishedEventArgs const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Notifier::Generated::ClipMoveStartedEventArgs const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Notifier::Generated::ClipUpdateFailedEventArgs const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Notifier::Generated::ClipUpdateFinishedEventArgs const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Notifier::Generated::PlayerStateChangedEventArgs const& record)
{
    return Found(record);
}

std::vector<Hazard> FindHazards(Notifier::Generated::RecorderStateChangedEventArgs const& record)
{
    return Found(record);
}

// What follows holds nothing that could end a process.

std::vector<Hazard> FindHazards(Corvane::Data::Generated::Guid const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Corvane::Data::Generated::MultiviewerDataOverrides const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Corvane::Data::Generated::OperationStatus const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Corvane::Data::Generated::PlayerDataOverrides const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Corvane::Data::Clips::Groups::Generated::Angle const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Corvane::Data::Clips::Groups::Generated::AnglesGroup const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Data::Clips::Generated::Essence const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Data::Clips::Generated::RecordingRange const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Data::Channels::Generated::LoadBoundary const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Data::Servers::Generated::ServerInfo const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Data::Sequences::Generated::Tag const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Data::Sequences::Generated::TagProperty const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::ChainCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::ChannelCommandReply const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::DeleteAnglesGroupCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::DeleteClipsCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::DeletePlaylistsCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::DialCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::FailureReply const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::GetAnglesGroupsCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::GetAnglesGroupsCommandReply const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::GetChannelsCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::GetClipsCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::GetMultiviewerDataCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::GetMultiviewerDataCommandReply const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::GetPlaylistsCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::GetServersCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::GetServersCommandReply const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::GetTrainsCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::GoIdleCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::LiveCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::LoadClipsCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::LoadSequencesCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::PingCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::PlayCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::SetLoadBoundariesCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::SetMultiviewerDataCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::StartRecordingCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::StepCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::StopRecordingCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::SuccessReply const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::SyncCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::UnknownCommandReply const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Commands::Generated::UpdateAnglesGroupCommandParams const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Notifier::Generated::AnglesGroupCreationEventArgs const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Notifier::Generated::AnglesGroupCreationFinishedEventArgs const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Notifier::Generated::AnglesGroupDeletionFinishedEventArgs const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Notifier::Generated::AnglesGroupUpdateFinishedEventArgs const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Notifier::Generated::ClipCommandEventArgs const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Notifier::Generated::DisconnectedFromNetworkEventArgs const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Notifier::Generated::MassClipDeletionFailedEventArgs const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Notifier::Generated::MassClipDeletionFinishedEventArgs const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Notifier::Generated::MassClipUpdateFailedEventArgs const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Notifier::Generated::MassClipUpdateFinishedEventArgs const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Notifier::Generated::RecordingRangesChangedEventArgs const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Notifier::Generated::ServerAddedEventArgs const&)
{
    return {};
}

std::vector<Hazard> FindHazards(Notifier::Generated::ServerRemovedEventArgs const&)
{
    return {};
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift
