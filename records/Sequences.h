#pragma once

#include "records/Pairs.h"

#include "Domain/CorvaneData/Sequences/Playlist.h"
#include "Thrift/Sequences.h"

namespace Talvo::Records
{

constexpr auto SequencePairs()
{
    using namespace Corvane::Zelmar::Serialization::Thrift::Data::Sequences;
    return PairList<Pair<AudioVideoElementToThriftConverter, ThriftToAudioVideoElementConverter>,
                    Pair<AudioVideoTrackToThriftConverter, ThriftToAudioVideoTrackConverter>,
                    Pair<ElementToThriftConverter, ThriftToElementConverter>,
                    Pair<PlaylistToThriftConverter, ThriftToPlaylistConverter>,
                    Pair<SequenceToThriftConverter, ThriftToSequenceConverter>,
                    Pair<SequenceIdToThriftConverter, ThriftToSequenceIdConverter>,
                    Pair<TagToThriftConverter, ThriftToTagConverter>,
                    Pair<TagPropertyToThriftConverter, ThriftToTagPropertyConverter>>();
}

} // namespace Talvo::Records
