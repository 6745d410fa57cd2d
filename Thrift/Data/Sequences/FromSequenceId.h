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

/// Writes a domain `SequenceId` into the wire record `SequenceId`: both fields. It can't fail.
class SequenceIdToThriftConverter : public Converter<Corvane::Data::Sequences::SequenceId, Generated::SequenceId>
{
public:
    ConversionResult To(Corvane::Data::Sequences::SequenceId const& source,
                        Generated::SequenceId& destination) const noexcept override;

    ConversionResult To(Corvane::Data::Sequences::SequenceId&& source,
                        Generated::SequenceId& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Data::Sequences
