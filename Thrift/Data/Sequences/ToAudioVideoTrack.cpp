#include "Thrift/Data/Sequences/ToAudioVideoTrack.h"

#include "Domain/CorvaneData/Sequences/AudioVideoElement.h"
#include "Domain/CorvaneData/Sequences/Track.h"
#include "Thrift/Data/Sequences/ToAudioVideoElement.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "generated/AudioVideoTrack_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;
using Corvane::Data::Sequences::AudioVideoElement;
using Corvane::Data::Sequences::Track;

ConversionResult ThriftToAudioVideoTrackConverter::ToOrThrow(Generated::AudioVideoTrack const& source,
                                                             Track<AudioVideoElement>& destination) const
{
    ThriftToAudioVideoElementConverter const toElement;

    // With elements, the number is neither read nor changed, although it may then differ from the list.
    if (source.__isset.elements) return AppendEach("elements", toElement, source.elements, destination.elements);
    if (source.__isset.numberOfElements)
    {
        destination.elements.clear();
        destination.numberOfElements = source.numberOfElements;
    }
    return Success();
}

ConversionResult ThriftToAudioVideoTrackConverter::To(Generated::AudioVideoTrack const& source,
                                                      Track<AudioVideoElement>& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult ThriftToAudioVideoTrackConverter::To(Generated::AudioVideoTrack&& source,
                                                      Track<AudioVideoElement>& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
