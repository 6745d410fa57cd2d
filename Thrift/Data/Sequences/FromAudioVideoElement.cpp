#include "Thrift/Data/Sequences/FromAudioVideoElement.h"

#include "Domain/CorvaneData/Sequences/AudioVideoElement.h"
#include "Thrift/Data/Sequences/EnumConverter.h"
#include "Thrift/Data/Sequences/FromElement.h"
#include "Thrift/Detail/Flagged.h"
#include "Thrift/Detail/Results.h"
#include "generated/AudioVideoElement_types.h"

#include <tuple>
#include <utility>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;
using EnumConverter::ToGeneratedEnum;

ConversionResult AudioVideoElementToThriftConverter::To(Corvane::Data::Sequences::AudioVideoElement const& source,
                                                        Generated::AudioVideoElement& destination) const noexcept
{
    ElementToThriftConverter const fromElement;

    TALVO_FLAGGED(destination, videoEffectType) = ToGeneratedEnum(source.videoEffectType);
    TALVO_FLAGGED(destination, audioEffectType) = ToGeneratedEnum(source.audioEffectType);
    TALVO_FLAGGED(destination, videoEffectDuration) = source.videoEffectDuration;
    TALVO_FLAGGED(destination, audioEffectDuration) = source.audioEffectDuration;
    TALVO_FLAGGED(destination, videoFieldIn) = source.videoFieldIn;
    TALVO_FLAGGED(destination, videoFieldOut) = source.videoFieldOut;
    TALVO_FLAGGED(destination, audioFieldIn) = source.audioFieldIn;
    TALVO_FLAGGED(destination, audioFieldOut) = source.audioFieldOut;
    // Replaced, not appended to; an element that fails is written with what was converted before the failure.
    Generated::Element element;
    std::ignore = fromElement.To(source, element);
    TALVO_FLAGGED(destination, element) = std::move(element);
    return Success();
}

ConversionResult AudioVideoElementToThriftConverter::To(Corvane::Data::Sequences::AudioVideoElement&& source,
                                                        Generated::AudioVideoElement& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
