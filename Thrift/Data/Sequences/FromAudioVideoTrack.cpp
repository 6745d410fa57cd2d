#include "Thrift/Data/Sequences/FromAudioVideoTrack.h"

#include "Domain/CorvaneData/Sequences/AudioVideoElement.h"
#include "Domain/CorvaneData/Sequences/Track.h"
#include "Thrift/Data/Sequences/FromAudioVideoElement.h"
#include "Thrift/Detail/Lists.h"
#include "Thrift/Detail/Results.h"
#include "generated/AudioVideoTrack_types.h"

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;
using Corvane::Data::Sequences::AudioVideoElement;
using Corvane::Data::Sequences::Track;

ConversionResult AudioVideoTrackToThriftConverter::To(Track<AudioVideoElement> const& source,
                                                      Generated::AudioVideoTrack& destination) const noexcept
{
    AudioVideoElementToThriftConverter const fromElement;

    // Either the elements are written or, if they are not loaded, their number: never both.
    bool const isNumberOnly = source.elements.empty() && source.numberOfElements != 0;
    if (isNumberOnly)
        destination.numberOfElements = source.numberOfElements;
    else if (auto const result = AppendEach("elements", fromElement, source.elements, destination.elements);
             !result.success)
        return Nested(result);
    destination.__isset.elements = !isNumberOnly;
    destination.__isset.numberOfElements = isNumberOnly;
    return Success();
}

ConversionResult AudioVideoTrackToThriftConverter::To(Track<AudioVideoElement>&& source,
                                                      Generated::AudioVideoTrack& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
