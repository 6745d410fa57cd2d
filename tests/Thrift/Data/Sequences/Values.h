#pragma once

#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "tests/Thrift/Data/Clips/Values.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace Talvo::Tests
{

inline Corvane::Data::Clips::UmId SomeUmId(char const* const text)
{
    Corvane::Data::Clips::UmId umId;
    umId.SetUmId(text);
    return umId;
}

inline Corvane::Data::Sequences::TagProperty Property(Corvane::Data::Sequences::TagProperty::Type const type,
                                                      std::vector<int> value)
{
    Corvane::Data::Sequences::TagProperty property;
    property.type = type;
    property.value = std::move(value);
    return property;
}

// No field of these values has its default, and no two fields of a record have the same number.

inline Corvane::Data::Sequences::Tag FullTag()
{
    using Corvane::Data::Sequences::Tag;
    using Type = Corvane::Data::Sequences::TagProperty::Type;
    using Key = Corvane::Data::Sequences::TagProperty::Key;
    Tag tag(Tag::CommandType::VirtualElementName);
    tag.id = -7;
    tag.field = 0x100000002;
    tag.properties.emplace(Key::Value, Property(Type::Boolean, {1}));
    tag.properties.emplace(Key::Name, Property(Type::String, {72, 105}));
    tag.properties.emplace(Key::Levels, Property(Type::Vector, {-2147483647 - 1, 0, 2147483647}));
    tag.properties.emplace(Key::TriggerType, Property(Type::Integer, {}));
    return tag;
}

inline Corvane::Data::Sequences::AudioVideoElement FullElement()
{
    using namespace Corvane::Data::Sequences;
    AudioVideoElement element;
    element.id = 21;
    element.sequenceId = SequenceId(Corvane::Data::Servers::ServerId(-22), 109);
    element.position = -23;
    element.umId = SomeUmId("ELEMENT1");
    element.inBoundaryType = BoundaryType::RelativeSelfOpposite;
    element.outBoundaryType = BoundaryType::RelativeClipCorresponding;
    element.effectPosition = EffectPosition::Center;
    element.stillMode = StillMode::PauseWithTransitionTimer;
    element.transitionTimer = 24;
    element.tags = {FullTag(), Tag(Tag::CommandType::GpiOut)};
    element.speed = {-25, 26};
    element.internalLoopId = 27;
    element.internalLoopRunNb = -28;
    element.videoEffectType = VideoEffectType::FadeToFromColor;
    element.audioEffectType = AudioEffectType::FadeToFromMute;
    element.videoEffectDuration = 31;
    element.audioEffectDuration = -32;
    element.videoFieldIn = 0x100000003;
    element.videoFieldOut = -4;
    element.audioFieldIn = 5;
    element.audioFieldOut = 0x7FFFFFFFFFFFFFFF;
    return element;
}

inline Corvane::Data::Sequences::Sequence FullSequence()
{
    using namespace Corvane::Data::Sequences;
    Sequence sequence;
    sequence.id = SequenceId(Corvane::Data::Servers::ServerId(3), 12);
    sequence.umId = SomeUmId("SEQUENCE");
    sequence.varId.isUtf16 = true;
    SetText(sequence.varId.payload, "A variable identifier, 32 bytes.");
    SetText(sequence.name.payload, "A name of 24 bytes, full");
    sequence.isTimeCodeRegen = true;
    sequence.timeCodeRegenReference = ParsedTimeCode("2024-02-29T23:59:00;02@30");
    sequence.timeCodeRegenBase = TimeCodeRegenBase::Irq;
    sequence.timeCodeRegenSource = TimeCodeRegenSource::UserBitsAndTimecodeOfFirstAudioTrack;
    sequence.timeCodeRegenOutput = TimeCodeRegenOutput::All;
    sequence.timeCodeRegenType = TimeCodeRegenType::ByElement;
    sequence.durationWithoutEffects = 0x100000004;
    sequence.durationWithEffects = -5;
    sequence.playRate = {60000, 1001};
    sequence.isFixedDuration = false;
    sequence.archiveStatus = Corvane::Data::Clips::ArchiveStatus::Stored;
    return sequence;
}

inline Corvane::Data::Sequences::Playlist FullPlaylist()
{
    Corvane::Data::Sequences::Playlist playlist;
    static_cast<Corvane::Data::Sequences::Sequence&>(playlist) = FullSequence();
    playlist.audioVideoTrack.elements = {FullElement(), Corvane::Data::Sequences::AudioVideoElement()};
    playlist.auxTrackClipUmId = SomeUmId("AUXCLIP1");
    return playlist;
}

} // namespace Talvo::Tests
