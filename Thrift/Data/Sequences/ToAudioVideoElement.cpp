#include "Thrift/Data/Sequences/ToAudioVideoElement.h"

#include "Domain/CorvaneData/Sequences/AudioVideoElement.h"
#include "Thrift/Data/Sequences/EnumConverter.h"
#include "Thrift/Data/Sequences/ToElement.h"
#include "Thrift/Detail/Reading.h"
#include "Thrift/Detail/Results.h"
#include "Thrift/Detail/SeenFields.h"
#include "generated/AudioVideoElement_types.h"

#include <tuple>

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

using namespace Detail;
using EnumConverter::FromGeneratedEnum;

ConversionResult
ThriftToAudioVideoElementConverter::ToOrThrow(Generated::AudioVideoElement const& source,
                                              Corvane::Data::Sequences::AudioVideoElement& destination) const
{
    ThriftToElementConverter const toElement;
    auto const& isset = source.__isset;
    SeenFields seen;

    // The element is applied, but it does not count as seen and its failure is ignored.
    if (isset.element) std::ignore = Read("element", toElement, source.element, destination);
    if (seen(isset.videoEffectType)) destination.videoEffectType = FromGeneratedEnum(source.videoEffectType);
    if (seen(isset.audioEffectType)) destination.audioEffectType = FromGeneratedEnum(source.audioEffectType);
    if (seen(isset.videoEffectDuration)) destination.videoEffectDuration = source.videoEffectDuration;
    if (seen(isset.audioEffectDuration)) destination.audioEffectDuration = source.audioEffectDuration;
    if (seen(isset.videoFieldIn)) destination.videoFieldIn = source.videoFieldIn;
    if (seen(isset.audioFieldIn)) destination.audioFieldIn = source.audioFieldIn;
    if (seen(isset.videoFieldOut)) destination.videoFieldOut = source.videoFieldOut;
    if (seen(isset.audioFieldOut)) destination.audioFieldOut = source.audioFieldOut;
    return seen.None() ? Failure("AudioVideoElement is empty") : Success();
}

ConversionResult
ThriftToAudioVideoElementConverter::To(Generated::AudioVideoElement const& source,
                                       Corvane::Data::Sequences::AudioVideoElement& destination) const noexcept
{
    return ToOrTerminate(*this, source, destination);
}

ConversionResult
ThriftToAudioVideoElementConverter::To(Generated::AudioVideoElement&& source,
                                       Corvane::Data::Sequences::AudioVideoElement& destination) const noexcept
{
    return To(source, destination);
}

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
