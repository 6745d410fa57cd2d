#pragma once

#include "tools/RecordType.h"

#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Thrift/Data/Sequences/FromAudioVideoElement.h"
#include "Thrift/Data/Sequences/FromAudioVideoTrack.h"
#include "Thrift/Data/Sequences/FromElement.h"
#include "Thrift/Data/Sequences/FromPlaylist.h"
#include "Thrift/Data/Sequences/FromSequence.h"
#include "Thrift/Data/Sequences/FromSequenceId.h"
#include "Thrift/Data/Sequences/FromTag.h"
#include "Thrift/Data/Sequences/FromTagProperty.h"
#include "Thrift/Data/Sequences/ToAudioVideoElement.h"
#include "Thrift/Data/Sequences/ToAudioVideoTrack.h"
#include "Thrift/Data/Sequences/ToElement.h"
#include "Thrift/Data/Sequences/ToPlaylist.h"
#include "Thrift/Data/Sequences/ToSequence.h"
#include "Thrift/Data/Sequences/ToSequenceId.h"
#include "Thrift/Data/Sequences/ToTag.h"
#include "Thrift/Data/Sequences/ToTagProperty.h"

#include "generated/AudioVideoElement_types.h"
#include "generated/AudioVideoTrack_types.h"
#include "generated/Element_types.h"
#include "generated/Playlist_types.h"
#include "generated/SequenceId_types.h"
#include "generated/Sequence_types.h"
#include "generated/TagProperty_types.h"
#include "generated/Tag_types.h"

#include <tuple>

namespace Talvo::Tools
{

inline Corvane::Data::Sequences::Tag
NewTag(Corvane::Zelmar::Serialization::Thrift::Data::Sequences::Generated::Tag const&)
{
    return Corvane::Data::Sequences::Tag(Corvane::Data::Sequences::Tag::CommandType::Custom);
}

constexpr auto SequenceRecords()
{
    namespace Domain = Corvane::Data::Sequences;
    using namespace Corvane::Zelmar::Serialization::Thrift::Data::Sequences;

    return std::tuple{
        Record<Generated::AudioVideoElement, AudioVideoElementToThriftConverter, ThriftToAudioVideoElementConverter,
               Domain::AudioVideoElement>("AudioVideoElement"),
        Record<Generated::AudioVideoTrack, AudioVideoTrackToThriftConverter, ThriftToAudioVideoTrackConverter,
               Domain::Track<Domain::AudioVideoElement>>("AudioVideoTrack"),
        Record<Generated::Element, ElementToThriftConverter, ThriftToElementConverter, Domain::Element>("Element"),
        Record<Generated::Playlist, PlaylistToThriftConverter, ThriftToPlaylistConverter, Domain::Playlist>("Playlist"),
        Record<Generated::Sequence, SequenceToThriftConverter, ThriftToSequenceConverter, Domain::Sequence>("Sequence"),
        Record<Generated::SequenceId, SequenceIdToThriftConverter, ThriftToSequenceIdConverter, Domain::SequenceId>(
            "SequenceId"),
        Record<Generated::Speed>("Speed"),
        Record<Generated::Tag, TagToThriftConverter, ThriftToTagConverter, Domain::Tag, &NewTag>("Tag"),
        Record<Generated::TagProperty, TagPropertyToThriftConverter, ThriftToTagPropertyConverter, Domain::TagProperty>(
            "TagProperty"),
    };
}

} // namespace Talvo::Tools
