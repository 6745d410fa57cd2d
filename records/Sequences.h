#pragma once

#include "records/Pairs.h"

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
