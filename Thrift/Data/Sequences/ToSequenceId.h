#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Data::Sequences
{
class SequenceId;
} // namespace Talvo::Corvane::Data::Sequences

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
{

namespace Generated
{
class SequenceId;
} // namespace Generated

/// Applies the fields of the wire record `SequenceId` whose flag is set to a domain `SequenceId`.
///
/// Failure: "SequenceId is empty" when no flag is set; the destination is then unchanged.
///
/// Ends the process: a location below 0 or above 109.
class ThriftToSequenceIdConverter : public Converter<Generated::SequenceId, Corvane::Data::Sequences::SequenceId>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::SequenceId const& source,
                               Corvane::Data::Sequences::SequenceId& destination) const;

    ConversionResult To(Generated::SequenceId const& source,
                        Corvane::Data::Sequences::SequenceId& destination) const noexcept override;

    ConversionResult To(Generated::SequenceId&& source,
                        Corvane::Data::Sequences::SequenceId& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
