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

/// Writes a domain `AudioVideoElement` into the wire record `AudioVideoElement`: its own eight fields, then its
/// `Element` part, whose result is ignored. It can't fail.
///
/// Lost: domain enumerators outside their table, which are written as 0.
class AudioVideoElementToThriftConverter
    : public Converter<Corvane::Data::Sequences::AudioVideoElement, Generated::AudioVideoElement>
{
public:
    ConversionResult To(Corvane::Data::Sequences::AudioVideoElement const& source,
                        Generated::AudioVideoElement& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Sequences::AudioVideoElement&& source,
                        Generated::AudioVideoElement& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
