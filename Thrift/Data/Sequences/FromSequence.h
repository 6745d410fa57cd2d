#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Sequences
{
struct Sequence;
} // namespace Talvo::Corvane::Data::Sequences

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

namespace Generated
{
class Sequence;
} // namespace Generated

/// Writes a domain `Sequence` into the wire record `Sequence`: every field. It can't fail. Texts go out whole, never
/// trimmed or transcoded.
///
/// Lost on the way: domain enumerators outside their table, which travel as 0, and that `timeCodeRegenReference` is
/// empty, since it travels as the text of `Clip::DefaultTimecode()`. ThriftToSequenceConverter refuses the text of one
/// that is undated or has a frame above 99, and a `playRate` that is neither over 1 nor has the numerator of a standard
/// rate; one that has becomes that rate.
class SequenceToThriftConverter : public Converter<Corvane::Data::Sequences::Sequence, Generated::Sequence>
{
public:
    ConversionResult To(Corvane::Data::Sequences::Sequence const& source,
                        Generated::Sequence& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Sequences::Sequence&& source,
                        Generated::Sequence& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
