#include "tests/Thrift/Data/Sequences/Values.h"

#include "records/Sequences.h"
#include "tests/Thrift/Converters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace Talvo::Tests
{
namespace
{

using namespace Corvane::Zelmar::Serialization::Thrift::Data::Sequences;
using namespace Corvane::Data::Sequences;
using Corvane::Data::Servers::ServerId;
using testing::ElementsAre;
using testing::SizeIs;

using AudioVideoTrack = Track<AudioVideoElement>;

using OfElement = Converters<ElementToThriftConverter, ThriftToElementConverter>;
using OfAudioVideoElement = Converters<AudioVideoElementToThriftConverter, ThriftToAudioVideoElementConverter>;
using OfTrack = Converters<AudioVideoTrackToThriftConverter, ThriftToAudioVideoTrackConverter>;
using OfPlaylist = Converters<PlaylistToThriftConverter, ThriftToPlaylistConverter>;

/// Returns the fields of FullElement() that are applied before its tags, with `tags`.
Element UpToTags(std::vector<Tag> tags)
{
    Element element = FullElement();
    element.tags = std::move(tags);
    element.internalLoopId = Element().internalLoopId;
    element.internalLoopRunNb = Element().internalLoopRunNb;
    element.speed = Element().speed;
    return element;
}

TEST(ElementConversion, TypeOfATagIsReadRegardlessOfItsFlag)
{
    auto wire = OfElement::Sent(FullElement());
    wire.tags[1].__isset.commandType = false;
    EXPECT_THAT(OfElement::Received(wire).tags, ElementsAre(FullTag(), Tag(Tag::CommandType::GpiOut)));
}

TEST(ElementConversion, AppendedTagsGrowTheListsGeometrically)
{
    Element thousand;
    for (auto id = 0; id < 1000; ++id) thousand.tags.emplace_back(Tag::CommandType::GpiOut).id = id;
    auto const wireThousand = OfElement::Sent(thousand);
    Element element;
    Generated::Element wire;
    auto growths = 0;
    for (auto i = 0; i < 1000; ++i)
    {
        auto const capacities = element.tags.capacity() + wire.tags.capacity();
        ASSERT_EQ(OfElement::Told(wireThousand, element), "");
        ASSERT_EQ(Told<ElementToThriftConverter>(thousand, wire), "");
        growths += element.tags.capacity() + wire.tags.capacity() != capacities;
    }
    EXPECT_LE(growths, 25);
    EXPECT_EQ(element.tags.size(), 1'000'000u);

    element = {};
    EXPECT_EQ(OfElement::Told(wire, element), "");
    EXPECT_EQ(element.tags.size(), 1'000'000u);
    EXPECT_EQ(element.tags.back(), thousand.tags.back());
}

TEST(AudioVideoElementConversion, FailureOfTheElementIsDropped)
{
    auto wire = OfAudioVideoElement::Sent(FullElement());
    wire.element.tags[1].__isset = {};
    auto expected = FullElement();
    static_cast<Element&>(expected) = UpToTags({FullTag()});
    EXPECT_EQ(OfAudioVideoElement::Received(wire), expected);

    Generated::AudioVideoElement onlyElement;
    onlyElement.element = wire.element;
    onlyElement.__isset.element = true;
    AudioVideoElement other;
    EXPECT_EQ(OfAudioVideoElement::Told(onlyElement, other), "AudioVideoElement is empty");
    EXPECT_EQ(static_cast<Element const&>(other), UpToTags({FullTag()}));

    onlyElement.element = {};
    EXPECT_EQ(OfAudioVideoElement::Told(onlyElement, other), "AudioVideoElement is empty");
    EXPECT_EQ(OfAudioVideoElement::Told(Generated::AudioVideoElement(), other), "AudioVideoElement is empty");
}

TEST(TrackConversion, WritesEitherElementsOrTheirNumber)
{
    Generated::AudioVideoTrack wire;
    auto const expectSent = [&wire](AudioVideoTrack const& track, bool const isNumber, std::size_t const size)
    {
        wire = OfTrack::Sent(track, wire);
        EXPECT_EQ(wire.__isset.numberOfElements, isNumber);
        EXPECT_EQ(wire.__isset.elements, !isNumber);
        EXPECT_THAT(wire.elements, SizeIs(size));
    };
    expectSent({0, {}}, false, 0);
    expectSent({5, {AudioVideoElement(), FullElement()}}, false, 2); // the number is not written
    EXPECT_EQ(wire.numberOfElements, 0);
    expectSent({7, {}}, true, 2); // a used record keeps elements that are not written, and more are appended
    EXPECT_EQ(wire.numberOfElements, 7);
    expectSent({0, {FullElement()}}, false, 3);
    EXPECT_EQ(wire.elements[1], wire.elements[2]);
}

TEST(PlaylistConversion, FailuresOfThePartsAreDropped)
{
    auto wire = OfPlaylist::Sent(FullPlaylist());
    wire.audioVideoTrack.elements.insert(wire.audioVideoTrack.elements.begin() + 1, Generated::AudioVideoElement());
    wire.sequence.playRateDenominator = 2;
    wire.sequence.playRateNumerator = 25;
    auto playlist = Playlist::Empty();
    playlist.audioVideoTrack = {5, {AudioVideoElement(), AudioVideoElement()}};
    playlist = OfPlaylist::Received(wire, playlist);
    auto expected = FullPlaylist();
    expected.audioVideoTrack = {0, {FullElement()}}; // replaced by the elements before the bad one
    expected.playRate = Playlist().playRate;
    expected.isFixedDuration = Playlist().isFixedDuration;
    expected.archiveStatus = Playlist().archiveStatus;
    EXPECT_EQ(playlist, expected);

    Generated::Playlist onlyEmptyParts;
    onlyEmptyParts.__isset.audioVideoTrack = onlyEmptyParts.__isset.sequence = true;
    expected.audioVideoTrack = {};
    EXPECT_EQ(OfPlaylist::Received(onlyEmptyParts, playlist), expected);
}

} // namespace
} // namespace Talvo::Tests
