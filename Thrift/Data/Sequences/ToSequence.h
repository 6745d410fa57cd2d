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

/// Applies the fields of the wire record `Sequence` whose flag is set to a domain `Sequence`. The destination is not
/// reset. The flags inside its `id` and its texts are ignored.
///
/// The play rate is read only if both of its flags are set. With the denominator 1 it is stored unchanged. Otherwise
/// its numerator has to be that of a standard rate, and the denominator becomes 1001.
///
/// Failures, with the fields before them already applied:
/// - "Invalid TimeCode format (" + the parser's text + ")": `timeCodeRegenReference` does not have the form of a time
///   code.
/// - "Invalid sequence rate " + numerator + ":" + denominator: no standard rate has that numerator.
/// - "Sequence is empty": none of `id`, `umId`, `varId`, `name`, `timeCodeRegenReference` and `archiveStatus` is set;
///   other fields may have been applied.
///
/// Ends the process: a location below 0 or above 109, and a `timeCodeRegenReference` that has the form of a time code
/// but an invalid value (a value out of range, a number that drop-frame skips, a rate too large for an `int`).
///
/// Lost: `umId` is cut at its first NUL and above 8 bytes, `varId` above 32 and `name` above 24; shorter texts are filled
/// with zeros, not blanks; a play rate of which only one flag is set; unknown enumeration numbers, which read as 0.
class ThriftToSequenceConverter : public Converter<Generated::Sequence, Corvane::Data::Sequences::Sequence>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::Sequence const& source,
                               Corvane::Data::Sequences::Sequence& destination) const;

    ConversionResult To(Generated::Sequence const& source,
                        Corvane::Data::Sequences::Sequence& destination) const noexcept override;

    ConversionResult To(Generated::Sequence&& source,
                        Corvane::Data::Sequences::Sequence& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
