#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct FailureReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class FailureReply;
} // namespace Generated

/// Reads a domain `FailureReply` from the wire record `FailureReply`.
///
/// An identifier replaces the whole destination, so its text is lost; a text alone keeps the identifier.
///
/// Failure: "FailureReply is empty" when no flag is set; the destination is then unchanged.
class ThriftToFailureReplyConverter
    : public Converter<Generated::FailureReply, HighLevelOperations::Commands::FailureReply>
{
public:
    ConversionResult To(Generated::FailureReply const& source,
                        HighLevelOperations::Commands::FailureReply& destination) const noexcept override;

    ConversionResult To(Generated::FailureReply&& source,
                        HighLevelOperations::Commands::FailureReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
