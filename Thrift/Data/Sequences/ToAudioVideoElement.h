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

/// Applies the wire record `AudioVideoElement` to a domain `AudioVideoElement`, as it stands: its `element`, whatever
/// that conversion reports, then those of its eight own fields whose flag is set.
///
/// Failure: "AudioVideoElement is empty" when none of the eight was there, though `element` may have been applied.
///
/// Ends the process: what ends it in ThriftToElementConverter.
///
/// Lost on the way: all that ThriftToElementConverter loses, and the fields behind the one that made it fail.
class ThriftToAudioVideoElementConverter
    : public Converter<Generated::AudioVideoElement, Corvane::Data::Sequences::AudioVideoElement>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::AudioVideoElement const& source,
                               Corvane::Data::Sequences::AudioVideoElement& destination) const;

    ConversionResult To(Generated::AudioVideoElement const& source,
                        Corvane::Data::Sequences::AudioVideoElement& destination) const noexcept override;

    ConversionResult To(Generated::AudioVideoElement&& source,
                        Corvane::Data::Sequences::AudioVideoElement& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
