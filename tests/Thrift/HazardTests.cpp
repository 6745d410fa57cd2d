#include "Thrift/Hazards.h"

#include "Domain/CorvaneData/Channels/PlayerClipOnAir.h"
#include "Domain/CorvaneData/Clips/Clip.h"
#include "Domain/CorvaneData/Sequences/Element.h"
#include "Domain/CorvaneData/Sequences/Sequence.h"
#include "Domain/HighLevelOperations/Commands/ClipResultsItem.h"
#include "Thrift/Commands/ToClipResultsItem.h"
#include "Thrift/Data/Channels/ToPlayerClipOnAir.h"
#include "Thrift/Data/Clips/ToClip.h"
#include "Thrift/Data/Sequences/ToElement.h"
#include "Thrift/Data/Sequences/ToSequence.h"
#include "Thrift/Data/Sequences/ToSequenceId.h"
#include "generated/ClipResultsItem_types.h"
#include "generated/CreateAnglesGroupCommandParams_types.h"
#include "generated/GetChannelsCommandReply_types.h"
#include "generated/Playlist_types.h"
#include "generated/Train_types.h"
#include "generated/UpdatePlaylistsCommandParams_types.h"
#include "tests/Thrift/RoundTrip.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift;
using testing::ElementsAre;
using testing::IsEmpty;

namespace WireClips = Data::Clips::Generated;
namespace WireChannels = Data::Channels::Generated;
namespace WireSequences = Data::Sequences::Generated;

WireClips::Clip BadClip()
{
    WireClips::Clip clip;
    clip.__set_inBoundUserTimecode("noon");
    return clip;
}

template<typename TRecord>
std::vector<std::string> Paths(TRecord const& record)
{
    std::vector<std::string> paths;
    for (auto const& hazard : FindHazards(record)) paths.push_back(hazard.path);
    return paths;
}

/// A record with one hazard, and what would end the process.
template<typename TConverter>
void ExpectHazard(SourceOf<TConverter> const& record, char const* const path, char const* const reason)
{
    EXPECT_THAT(FindHazards(record), ElementsAre(Hazard{path, reason}));
    DestinationOf<TConverter> domain;
    EXPECT_DEATH(std::ignore = TConverter().To(record, domain), "terminate");
}

TEST(HazardsDeathTest, EachCauseEndsTheProcess)
{
    auto const clip = [](char const* const tod, char const* const user)
    {
        WireClips::Clip wire;
        if (tod != nullptr) wire.__set_inBoundTodTimecode(tod);
        if (user != nullptr) wire.__set_inBoundUserTimecode(user);
        return wire;
    };
    constexpr auto* noForm = "TalvoTimeCodeParser the string 'noon' has not the expected format.";
    constexpr auto* badDay = "day 30is negative or greater than 29 in month 2";
    ExpectHazard<Data::Clips::ThriftToClipConverter>(clip("noon", nullptr), "inBoundTodTimecode", noForm);
    ExpectHazard<Data::Clips::ThriftToClipConverter>(clip(nullptr, "2024-02-30T00:00:00:00@50"), "inBoundUserTimecode",
                                                     badDay);
    ExpectHazard<Data::Clips::ThriftToClipConverter>(clip("00:00:00:00@99999999999", nullptr), "inBoundTodTimecode",
                                                     "stoi");

    WireChannels::PlayerClipOnAir onAir;
    onAir.__set_todCurTimecodeOnAir("noon");
    ExpectHazard<Data::Channels::ThriftToPlayerClipOnAirConverter>(onAir, "todCurTimecodeOnAir", noForm);
    onAir = {};
    onAir.__set_userCurTimecodeOnAir("noon");
    ExpectHazard<Data::Channels::ThriftToPlayerClipOnAirConverter>(onAir, "userCurTimecodeOnAir", noForm);

    constexpr auto* badLocation = "SequenceId.Location : invalid location number";
    WireSequences::SequenceId id;
    id.location = 110;
    id.__isset.location = true;
    ExpectHazard<Data::Sequences::ThriftToSequenceIdConverter>(id, "location", badLocation);
    WireSequences::Element element;
    element.sequenceId = id;
    element.__isset.sequenceId = true;
    ExpectHazard<Data::Sequences::ThriftToElementConverter>(element, "sequenceId.location", badLocation);
    WireSequences::Sequence sequence;
    sequence.id.location = -1; // the flag inside is not read
    sequence.__isset.id = true;
    ExpectHazard<Data::Sequences::ThriftToSequenceConverter>(sequence, "id.location", badLocation);
    sequence = {};
    sequence.timeCodeRegenReference = "2024-02-30T00:00:00:00@50";
    sequence.__isset.timeCodeRegenReference = true;
    ExpectHazard<Data::Sequences::ThriftToSequenceConverter>(sequence, "timeCodeRegenReference", badDay);

    // A clip that its caller drops.
    Commands::Generated::ClipResultsItem item;
    item.__set_clip(BadClip());
    ExpectHazard<Commands::ThriftToClipResultsItemConverter>(item, "clip.inBoundUserTimecode", noForm);
}

TEST(Hazards, AreFoundWhereverAConverterReads)
{
    WireClips::Train train;
    train.__set_trainData(BadClip());
    EXPECT_THAT(Paths(train), ElementsAre("trainData.inBoundUserTimecode"));

    Commands::Generated::CreateAnglesGroupCommandParams group; // its own flag is not read, that of the list is
    group.creationParams.clips.resize(4);
    group.creationParams.clips[1].clip = group.creationParams.clips[3].clip = BadClip();
    EXPECT_THAT(Paths(group), IsEmpty());
    group.creationParams.__isset.clips = true;
    EXPECT_THAT(Paths(group), ElementsAre("creationParams.clips[1].clip.inBoundUserTimecode",
                                          "creationParams.clips[3].clip.inBoundUserTimecode"));

    Commands::Generated::GetChannelsCommandReply channels; // no flag is read
    Corvane::Data::Generated::Guid key;
    key.value = std::string("\0A\"", 3);
    auto& state = channels.players[key];
    state.previewOnAir.__set_clipOnAir(BadClip());
    state.__isset.previewOnAir = true;
    EXPECT_THAT(Paths(channels), ElementsAre(R"(players["\x00A\x22"].previewOnAir.clipOnAir.inBoundUserTimecode)"));

    WireSequences::Playlist playlist;
    playlist.audioVideoTrack.elements.resize(2);
    auto& element = playlist.audioVideoTrack.elements[1];
    element.element.sequenceId.location = 110;
    element.element.sequenceId.__isset.location = element.element.__isset.sequenceId = element.__isset.element = true;
    playlist.__isset.audioVideoTrack = playlist.audioVideoTrack.__isset.elements = true;
    Commands::Generated::UpdatePlaylistsCommandParams update;
    update.params.resize(1);
    update.params[0].newPlaylist = playlist;
    update.__isset.params = true;
    EXPECT_THAT(Paths(update),
                ElementsAre("params[0].newPlaylist.audioVideoTrack.elements[1].element.sequenceId.location"));
}

TEST(Hazards, AreNoneWhereNoConverterReads)
{
    auto clip = BadClip();
    clip.__isset.inBoundUserTimecode = false;
    clip.__set_sourceInBoundTodTimecode("noon");
    EXPECT_THAT(FindHazards(clip), IsEmpty());

    WireClips::Train train; // a guarded text
    train.lastKnownTimeCode = "noon";
    train.__isset.lastKnownTimeCode = true;
    EXPECT_THAT(FindHazards(train), IsEmpty());

    WireSequences::Sequence sequence; // a failure, no hazard
    sequence.timeCodeRegenReference = "noon";
    sequence.__isset.timeCodeRegenReference = true;
    EXPECT_THAT(FindHazards(sequence), IsEmpty());
}

} // namespace
} // namespace Talvo::Tests
