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

/// Writes a domain `Sequence` into the wire record `Sequence`: every field. It can't fail. Texts are written whole,
/// never trimmed or transcoded.
///
/// Lost: domain enumerators outside their table, which are written as 0, and that `timeCodeRegenReference` is empty,
/// since it is written as the text of `Clip::DefaultTimecode()`. ThriftToSequenceConverter rejects the text of a time
/// code that is undated or has a frame above 99, and a `playRate` whose denominator is not 1 and whose numerator is not
/// that of a standard rate; with the numerator of a standard rate it becomes that rate.
class SequenceToThriftConverter : public Converter<Corvane::Data::Sequences::Sequence, Generated::Sequence>
{
public:
    ConversionResult To(Corvane::Data::Sequences::Sequence const& source,
                        Generated::Sequence& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Sequences::Sequence&& source,
                        Generated::Sequence& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
