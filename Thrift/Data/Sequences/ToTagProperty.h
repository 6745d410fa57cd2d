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

/// Replaces a domain `TagProperty` with the wire record `TagProperty`.
///
/// Failure: "TagProperty is empty" when one of the two flags is clear; the destination is then unchanged.
///
/// Lost: an unknown type reads as `Boolean`.
class ThriftToTagPropertyConverter : public Converter<Generated::TagProperty, Corvane::Data::Sequences::TagProperty>
{
public:
    ConversionResult To(Generated::TagProperty const& source,
                        Corvane::Data::Sequences::TagProperty& destination) const noexcept override;

    ConversionResult To(Generated::TagProperty&& source,
                        Corvane::Data::Sequences::TagProperty& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
