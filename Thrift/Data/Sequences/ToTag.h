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

/// Applies the wire record `Tag` to a domain `Tag`.
///
/// A `commandType` first resets the whole destination to a new tag of that type; without one the other fields are
/// applied to the destination's current state. Properties are added in ascending order of their keys; a key that is
/// already present keeps its value.
///
/// Failures, with the fields before them already applied:
/// - "TagProperty is empty", from a property; those before it are kept.
/// - "Tag is empty": neither `id` nor `field` nor a property is set. A `commandType` does not count, but has reset the
///   destination.
///
/// Lost: unknown keys read as `Value`, and of those and `Value` itself only the one with the lowest key is kept;
/// unknown enumeration numbers read as 0.
class ThriftToTagConverter : public Converter<Generated::Tag, Corvane::Data::Sequences::Tag>
{
public:
    ConversionResult To(Generated::Tag const& source,
                        Corvane::Data::Sequences::Tag& destination) const noexcept override;

    ConversionResult To(Generated::Tag&& source, Corvane::Data::Sequences::Tag& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
