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
/// A `commandType` first resets the whole destination to a new tag of that type; without one the other fields patch the
/// destination as it stands. Properties are added in ascending order of their keys; a key that is there already keeps
/// its value.
///
/// Failures, with what was applied before them left in the destination:
/// - "TagProperty is empty", from a property; those before it are kept.
/// - "Tag is empty": neither `id` nor `field` nor a property was there. A `commandType` does not count, though it has
///   reset the destination.
///
/// Lost on the way: unknown keys read as `Value`, and of those and `Value` itself the lowest stays; unknown enumeration
/// numbers read as 0.
class ThriftToTagConverter : public Converter<Generated::Tag, Corvane::Data::Sequences::Tag>
{
public:
    ConversionResult To(Generated::Tag const& source,
                        Corvane::Data::Sequences::Tag& destination) const noexcept override;

    ConversionResult To(Generated::Tag&& source, Corvane::Data::Sequences::Tag& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
