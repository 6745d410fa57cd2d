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
/// If `elements` is set, they are appended to those in the destination and the number is neither read nor changed.
/// Otherwise, if `numberOfElements` is set, it replaces the number and all elements are removed. A record with neither
/// is not a failure.
///
/// Failures: any failure of ThriftToAudioVideoElementConverter, from an element; the elements before it are kept.
///
/// Ends the process: anything that ends it in ThriftToAudioVideoElementConverter.
class ThriftToAudioVideoTrackConverter
    : public Converter<Generated::AudioVideoTrack,
                       Corvane::Data::Sequences::Track<Corvane::Data::Sequences::AudioVideoElement>>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
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
