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

/// Applies the wire record `AudioVideoTrack` to a domain `Track<AudioVideoElement>`.
///
/// With `elements` set, they are appended to those that the destination holds and the number is neither read nor
/// changed; else with `numberOfElements` set, it replaces the number and all elements are gone. Neither at all is no
/// failure.
///
/// Failures: any of ThriftToAudioVideoElementConverter, from an element; those before it are kept.
///
/// Ends the process: what ends it in ThriftToAudioVideoElementConverter.
class ThriftToAudioVideoTrackConverter
    : public Converter<Generated::AudioVideoTrack,
                       Corvane::Data::Sequences::Track<Corvane::Data::Sequences::AudioVideoElement>>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult
    ToOrThrow(Generated::AudioVideoTrack const& source,
              Corvane::Data::Sequences::Track<Corvane::Data::Sequences::AudioVideoElement>& destination) const;

    ConversionResult To(Generated::AudioVideoTrack const& source,
                        Corvane::Data::Sequences::Track<Corvane::Data::Sequences::AudioVideoElement>& destination)
        const noexcept override;

    ConversionResult To(Generated::AudioVideoTrack&& source,
                        Corvane::Data::Sequences::Track<Corvane::Data::Sequences::AudioVideoElement>& destination)
        const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
