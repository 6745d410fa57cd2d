#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Sequences
{
struct Element;
} // namespace Talvo::Corvane::Data::Sequences

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

namespace Generated
{
class Element;
} // namespace Generated

/// Applies the fields of the wire record `Element` whose flag is set to a domain `Element`, as it stands. `tags` are
/// appended to those that the destination holds; the flags inside `speed` are not looked at.
///
/// Failures, with what was applied before them left in the destination:
/// - "SequenceId is empty": `sequenceId` has no flag set.
/// - any of ThriftToTagConverter, from a tag; the tags before it are kept.
/// - "Element is empty": no field was there.
///
/// Ends the process: a location below 0 or above 109.
///
/// Lost on the way: `umId` above 8 bytes is cut; unknown enumeration numbers read as 0.
class ThriftToElementConverter : public Converter<Generated::Element, Corvane::Data::Sequences::Element>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::Element const& source, Corvane::Data::Sequences::Element& destination) const;

    ConversionResult To(Generated::Element const& source,
                        Corvane::Data::Sequences::Element& destination) const noexcept override;

    ConversionResult To(Generated::Element&& source,
                        Corvane::Data::Sequences::Element& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
