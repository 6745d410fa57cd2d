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

/// Applies the fields of the wire record `Element` whose flag is set to a domain `Element`. The destination is not
/// reset. `tags` are appended to those in the destination; the flags inside `speed` are ignored.
///
/// Failures, with the fields before them already applied:
/// - "SequenceId is empty": `sequenceId` has no flag set.
/// - any failure of ThriftToTagConverter, from a tag; the tags before it are kept.
/// - "Element is empty": no field is set.
///
/// Ends the process: a location below 0 or above 109.
///
/// Lost: `umId` is cut at its first NUL and above 8 bytes; unknown enumeration numbers read as 0.
class ThriftToElementConverter : public Converter<Generated::Element, Corvane::Data::Sequences::Element>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::Element const& source, Corvane::Data::Sequences::Element& destination) const;

    ConversionResult To(Generated::Element const& source,
                        Corvane::Data::Sequences::Element& destination) const noexcept override;

    ConversionResult To(Generated::Element&& source,
                        Corvane::Data::Sequences::Element& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
