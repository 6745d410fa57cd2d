#pragma once

#include "Domain/CorvaneData/Notification/ClipCreationFinishedEventArgs.h"
#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Domain/HighLevelOperations/Commands/GetClipsCommandReply.h"
#include "tests/Thrift/Data/Channels/Values.h"
#include "tests/Thrift/Data/Clips/Values.h"
#include "tests/Thrift/Data/Sequences/Values.h"

#include <cstddef>
#include <list>

// Full objects that several benchmarks use.

namespace Talvo::Benchmarks
{

/// A clip with all texts, both time codes and two essences.
inline Corvane::Data::Clips::Clip ClipWithTwoEssences()
{
    auto clip = Tests::FullClip();
    clip.lowResEssence.Clear(Corvane::Data::Clips::Essences::Type::LowRes);
    return clip;
}

inline Corvane::Notification::ClipCreationFinishedEventArgs CreationOf(Corvane::Data::Clips::Clip const& source,
                                                                       Corvane::Data::Clips::Clip const& created)
{
    using Event = Corvane::Notification::ClipCreationFinishedEventArgs;
    Event event(310042, Event::RequestSource::Network, 7, 1, Corvane::Data::Guid::Generate(), 12, source, created,
                Event::CreationType::Copy, Event::NetworkType::PushGbe);
    event.subCommandIndex = 2;
    return event;
}

/// The destination of a creation event. It differs from CreationOf() in every field.
inline Corvane::Notification::ClipCreationFinishedEventArgs FreshCreation()
{
    using Event = Corvane::Notification::ClipCreationFinishedEventArgs;
    static Event const fresh(0, Event::RequestSource::Unknown, 0, 0, Corvane::Data::Guid::Empty(), 0, {}, {},
                             Event::CreationType::Unknown, Event::NetworkType::Unknown);
    return fresh;
}

/// A playlist of `count` elements, each with three tags of two properties.
inline Corvane::Data::Sequences::Playlist PlaylistOf(std::size_t const count)
{
    using Corvane::Data::Sequences::Tag;
    using Corvane::Data::Sequences::TagProperty;
    Tag tag(Tag::CommandType::GpiOut);
    tag.id = 1;
    tag.field = 1200;
    tag.properties.emplace(TagProperty::Key::OutputNumber, TagProperty(3));
    tag.properties.emplace(TagProperty::Key::Duration, TagProperty(50));
    auto element = Tests::FullElement();
    element.tags.assign(3, tag);

    auto playlist = Tests::FullPlaylist();
    playlist.audioVideoTrack.elements.assign(count, element);
    return playlist;
}

/// A reply of `count` full clips.
inline Corvane::Zelmar::HighLevelOperations::Commands::GetClipsCommandReply ReplyOf(std::size_t const count)
{
    return {Corvane::Data::Guid::Generate(), 1, std::list<Corvane::Data::Clips::Clip>(count, Tests::FullClip())};
}

/// The destination of a reply.
inline Corvane::Zelmar::HighLevelOperations::Commands::GetClipsCommandReply FreshReply()
{
    return {Corvane::Data::Guid::Empty(), 0, {}};
}

} // namespace Talvo::Benchmarks
