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
/// Properties are added to those in the destination, in the order of the tag's hash map; a key that is already present
/// is skipped. Keys outside their table are all written as `Value`, so of them and the tag's own `Value` only the first
/// in that order is written, and the others are lost. A `commandType` outside its table is written as 0.
class TagToThriftConverter : public Converter<Corvane::Data::Sequences::Tag, Generated::Tag>
{
public:
    ConversionResult To(Corvane::Data::Sequences::Tag const& source,
                        Generated::Tag& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Sequences::Tag&& source, Generated::Tag& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
