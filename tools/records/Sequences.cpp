#include "tools/RecordTypes.h"

#include "generated/AudioVideoElement_types.h"
#include "generated/AudioVideoTrack_types.h"
#include "generated/Element_types.h"
#include "generated/Playlist_types.h"
#include "generated/SequenceId_types.h"
#include "generated/Sequence_types.h"
#include "generated/TagProperty_types.h"
#include "generated/Tag_types.h"

namespace Talvo::Tools
{

std::vector<RecordType> SequenceRecords()
{
    using namespace Corvane::Zelmar::Serialization::Thrift::Data::Sequences;

    return {
        Record<Generated::AudioVideoElement>("AudioVideoElement"),
        Record<Generated::AudioVideoTrack>("AudioVideoTrack"),
        Record<Generated::Element>("Element"),
        Record<Generated::Playlist>("Playlist"),
        Record<Generated::Sequence>("Sequence"),
        Record<Generated::SequenceId>("SequenceId"),
        Record<Generated::Speed>("Speed"),
        Record<Generated::Tag>("Tag"),
        Record<Generated::TagProperty>("TagProperty"),
    };
}

} // namespace Talvo::Tools
