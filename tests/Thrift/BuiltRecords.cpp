#include "tests/Thrift/BuiltRecords.h"

#include "records/All.h"
#include "records/ViewOf.h"
#include "tests/Thrift/Data/Channels/Values.h"
#include "tests/Thrift/Data/MultiviewerValues.h"
#include "tests/Thrift/Data/Sequences/Values.h"
#include "tests/Thrift/Data/Servers/Values.h"
#include "tests/Thrift/Notifier/Values.h"

#include <gtest/gtest.h>

#include <memory>

namespace Talvo::Tests
{

using namespace Corvane::Notification;
using namespace Corvane::Zelmar::HighLevelOperations::Commands;
using namespace Corvane::Zelmar::Serialization::Thrift::Commands;
using namespace Corvane::Zelmar::Serialization::Thrift::Data;
using namespace Corvane::Zelmar::Serialization::Thrift::Notifier;

namespace WireClips = Corvane::Zelmar::Serialization::Thrift::Data::Clips;
namespace WireChannels = Corvane::Zelmar::Serialization::Thrift::Data::Channels;
namespace WireSequences = Corvane::Zelmar::Serialization::Thrift::Data::Sequences;
namespace WireServers = Corvane::Zelmar::Serialization::Thrift::Data::Servers;

namespace
{

Corvane::Data::Clips::Clip Named(char const* const umId)
{
    Corvane::Data::Clips::Clip clip;
    SetText(clip.umId, umId);
    return clip;
}

} // namespace

std::map<std::string, Records::View> BuiltRecords()
{
    using namespace Corvane::Data::Channels;
    using ClipGuid = Corvane::Data::Clips::Guid;
    using Corvane::Data::Clips::RecordingRange;
    auto const channel = Id<Corvane::Data::Channels::Guid>('a');
    auto const inBoundary = Boundary::AbsoluteBoundary({-21});
    auto const outBoundary = Boundary::RelativeBoundary(Boundary::RelativeTo::RelativeToOppositeClipBoundary, 7);

    std::map<std::string, Records::View> built;
    auto const add =
        [&built]<typename TToWire>(TToWire const& converter, auto&& domain, std::string const& state = ", built")
    {
        Records::DestinationOf<TToWire> wire;
        EXPECT_TRUE(converter.To(domain, wire).success);
        built[Records::NameOf(wire) + state] = Records::ViewOf(wire);
    };
    auto const addCommand = [&add](auto const& converter, auto params)
    {
        params.commandGuid = Id('c'); // a new identifier is generated otherwise
        add(converter, params);
    };

    auto clip = FullClip();
    clip.isDual = clip.isLegacyTimecodeDrop = false;
    add(WireClips::ClipToThriftConverter(), clip);
    clip.isDual = true;
    clip.isTwinRec = false;
    EXPECT_TRUE(clip.TrySetInBoundTodTimecode(TimePoints::TimeCode::Empty()));
    add(WireClips::ClipToThriftConverter(), clip, ", built otherwise");
    add(WireClips::EssenceToThriftConverter(), FullEssence(Corvane::Data::Clips::Essences::Type::LongGop));
    RecordingRange const range{
        {1}, {-2}, ParsedTimeCode("2001-01-01T01:02:03:04@25"), ParsedTimeCode("2001-01-01T01:02:59;29@30")};
    add(WireClips::RecordingRangeToThriftConverter(), range);
    add(WireClips::TrainToThriftConverter(),
        Corvane::Data::Clips::Train(nullptr, {range}, true, false, TimePoints::TimeCode()));

    add(FromPlayerDataOverrides(), FullOverrides('p'));
    add(WireChannels::PlayerClipOnAirToThriftConverter(), FullClipOnAir());
    add(WireChannels::PlayerStateToThriftConverter(), FullPlayerState());
    add(WireChannels::RecorderStateToThriftConverter(), FullRecorderState());
    add(WireServers::ServerInfoToThriftConverter(), FullServerInfo());

    add(WireSequences::AudioVideoElementToThriftConverter(), FullElement());
    add(WireSequences::SequenceToThriftConverter(), FullSequence());
    add(WireSequences::TagToThriftConverter(), FullTag());

    PlayCommandParams play;
    play.speedNumerator = -1;
    play.speedDenominator = 2;
    addCommand(PlayCommandParamsToThriftConverter(), play);
    ChainCommandParams chain;
    chain.inBoundary = inBoundary;
    chain.outBoundary = outBoundary;
    addCommand(ChainCommandParamsToThriftConverter(), chain);
    SyncCommandParams sync;
    sync.sourcePlayer = channel;
    sync.inBoundary = inBoundary;
    sync.outBoundary = outBoundary;
    addCommand(SyncCommandParamsToThriftConverter(), sync);
    LiveCommandParams live;
    live.players = {{channel, Id<Corvane::Data::Channels::Guid>('b')}};
    addCommand(LiveCommandParamsToThriftConverter(), live);
    LoadClipsCommandParams loadClips;
    loadClips.playersParameters = {{channel, {Id<ClipGuid>('x'), {-3}, inBoundary, outBoundary}}};
    addCommand(LoadClipsCommandParamsToThriftConverter(), loadClips);
    SetLoadBoundariesCommandParams setBoundaries;
    setBoundaries.playersParameters = {{channel, {inBoundary, outBoundary}}};
    addCommand(SetLoadBoundariesCommandParamsToThriftConverter(), setBoundaries);
    UpdateAnglesGroupCommandParams updateGroup;
    updateGroup.groupGuid = Id<Corvane::Data::Clips::Groups::Guid>('g');
    updateGroup.primaryAngle = Id<ClipGuid>('p');
    updateGroup.secondaryAngle = Id<ClipGuid>('s');
    addCommand(UpdateAnglesGroupCommandParamsToThriftConverter(), updateGroup);
    UpdateClipsCommandParams updateClips;
    updateClips.clips = {{Named("OLD"), Named("NEW")}};
    addCommand(UpdateClipsCommandParamsToThriftConverter(), updateClips);
    UpdatePlaylistsCommandParams updatePlaylists;
    updatePlaylists.params.resize(1);
    updatePlaylists.params[0].oldPlaylist.umId = SomeUmId("OLD");
    addCommand(UpdatePlaylistsCommandParamsToThriftConverter(), updatePlaylists);

    add(PlayerStateChangedEventArgsToThriftConverter(),
        PlayerStateChangedEventArgs{{Corvane::Data::Channels::Guid::Type::ChannelGuidTypePlayer, -5, 6}, 0x40, {}});
    add(RecorderStateChangedEventArgsToThriftConverter(),
        RecorderStateChangedEventArgs{{Corvane::Data::Channels::Guid::Type::ChannelGuidTypeRecorder, -5, 6}, 0x40, {}});
    RecordingRangesChangedEventArgs ranges;
    ranges.isInBoundMoving = true;
    add(RecordingRangesChangedEventArgsToThriftConverter(), ranges);
    auto const first = Named("FIRST");
    auto const second = Named("SECOND");
    auto const addEvent = [&add]<typename TToWire>(TToWire const& converter, auto const&... details)
    { add(converter, SomeEvent<Records::SourceOf<TToWire>>(details...)); };
    constexpr auto Copy = ClipCreationEventArgs::CreationType::Copy;
    constexpr auto PushGbe = ClipCreationEventArgs::NetworkType::PushGbe;
    constexpr auto NotFound = Corvane::Data::OperationResult::ResourceNotFound;
    constexpr short Internal = -7;
    constexpr unsigned int Serial = 0xFFFFFFFC;
    constexpr unsigned char Byte = 0xFE;
    addEvent(ClipCommandEventArgsToThriftConverter());
    addEvent(ClipCreationStartedEventArgsToThriftConverter(), first, second, Copy, PushGbe);
    addEvent(ClipCreationFinishedEventArgsToThriftConverter(), first, second, Copy, PushGbe);
    addEvent(ClipCreationFailedEventArgsToThriftConverter(), NotFound, Internal, first, second, Copy, PushGbe);
    addEvent(ClipUpdateFinishedEventArgsToThriftConverter(), true, first, second);
    addEvent(ClipUpdateFailedEventArgsToThriftConverter(), NotFound, Internal, first, second);
    addEvent(MassClipUpdateFinishedEventArgsToThriftConverter(), Serial);
    addEvent(MassClipUpdateFailedEventArgsToThriftConverter(), NotFound, Internal, Serial);
    addEvent(ClipDeletionFinishedEventArgsToThriftConverter(), first, Byte, Byte);
    addEvent(ClipDeletionFailedEventArgsToThriftConverter(), NotFound, Internal, first, Byte, Byte, Byte, true, false);
    addEvent(MassClipDeletionFinishedEventArgsToThriftConverter(), Serial);
    addEvent(MassClipDeletionFailedEventArgsToThriftConverter(), NotFound, Internal, Serial);
    addEvent(ClipMoveStartedEventArgsToThriftConverter(), first, second);
    addEvent(ClipMoveFinishedEventArgsToThriftConverter(), first, second);
    addEvent(ClipMoveFailedEventArgsToThriftConverter(), NotFound, Internal, first, second);
    AnglesGroupCreationFailedEventArgs groupFailed(
        -5, Id('c'), Corvane::Data::Clips::Groups::AnglesGroup(Id<Corvane::Data::Clips::Groups::Guid>('g')));
    groupFailed.result = NotFound;
    groupFailed.internalResult = Internal;
    add(AnglesGroupCreationFailedEventArgsToThriftConverter(), groupFailed);
    return built;
}

} // namespace Talvo::Tests
