#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Sequences
{
struct AudioVideoElement;

template<typename T>
struct Track;
} // namespace Talvo::Corvane::Data::Sequences

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

namespace Generated
{
class AudioVideoTrack;
} // namespace Generated

/// Writes a domain `Track<AudioVideoElement>` into the wire record `AudioVideoTrack`, which carries either the elements
/// or, if they are not loaded, their number. It can't fail. Elements are appended to those in the destination.
class AudioVideoTrackToThriftConverter
    : public Converter<Corvane::Data::Sequences::Track<Corvane::Data::Sequences::AudioVideoElement>,
                       Generated::AudioVideoTrack>
{
public:
    ConversionResult To(Corvane::Data::Sequences::Track<Corvane::Data::Sequences::AudioVideoElement> const& source,
                        Generated::AudioVideoTrack& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Sequences::Track<Corvane::Data::Sequences::AudioVideoElement>&& source,
                        Generated::AudioVideoTrack& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
