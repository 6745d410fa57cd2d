#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Sequences
{
struct Tag;
} // namespace Talvo::Corvane::Data::Sequences

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

namespace Generated
{
class Tag;
} // namespace Generated

/// Writes a domain `Tag` into the wire record `Tag`. It can't fail.
///
/// Properties are added to those that the destination holds, in the order of the tag's hash map; a key that is there
/// already is skipped. Keys outside their table all travel as `Value`, so of them and the tag's own `Value` the first in
/// that order is sent and the others are lost. A `commandType` outside its table travels as 0.
class TagToThriftConverter : public Converter<Corvane::Data::Sequences::Tag, Generated::Tag>
{
public:
    ConversionResult To(Corvane::Data::Sequences::Tag const& source,
                        Generated::Tag& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Sequences::Tag&& source, Generated::Tag& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
