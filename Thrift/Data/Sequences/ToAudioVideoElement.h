#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Sequences
{
struct AudioVideoElement;
} // namespace Talvo::Corvane::Data::Sequences

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

namespace Generated
{
class AudioVideoElement;
} // namespace Generated

/// Applies the wire record `AudioVideoElement` to a domain `AudioVideoElement`, without resetting it: first its
/// `element`, whose result is ignored, then those of its own eight fields whose flag is set.
///
/// Failure: "AudioVideoElement is empty" when none of the eight is set; `element` may have been applied.
///
/// Ends the process: anything that ends it in ThriftToElementConverter.
///
/// Lost: what ThriftToElementConverter loses, and the fields after one that made it fail.
class ThriftToAudioVideoElementConverter
    : public Converter<Generated::AudioVideoElement, Corvane::Data::Sequences::AudioVideoElement>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::AudioVideoElement const& source,
                               Corvane::Data::Sequences::AudioVideoElement& destination) const;

    ConversionResult To(Generated::AudioVideoElement const& source,
                        Corvane::Data::Sequences::AudioVideoElement& destination) const noexcept override;

    ConversionResult To(Generated::AudioVideoElement&& source,
                        Corvane::Data::Sequences::AudioVideoElement& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
