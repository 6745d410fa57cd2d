#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Sequences
{
struct TagProperty;
} // namespace Talvo::Corvane::Data::Sequences

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

namespace Generated
{
class TagProperty;
} // namespace Generated

/// Writes a domain `TagProperty` into the wire record `TagProperty`. It can't fail. The integers are appended to those
/// in the destination. A type outside its table is written as 0, `Boolean`.
class TagPropertyToThriftConverter : public Converter<Corvane::Data::Sequences::TagProperty, Generated::TagProperty>
{
public:
    ConversionResult To(Corvane::Data::Sequences::TagProperty const& source,
                        Generated::TagProperty& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Sequences::TagProperty&& source,
                        Generated::TagProperty& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
