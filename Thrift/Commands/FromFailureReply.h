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

/// Writes a domain `FailureReply` into the wire record `FailureReply`. It can't fail. An empty text leaves the wire's
/// field and flag unchanged.
class FailureReplyToThriftConverter
    : public Converter<HighLevelOperations::Commands::FailureReply, Generated::FailureReply>
{
public:
    ConversionResult To(HighLevelOperations::Commands::FailureReply const& source,
                        Generated::FailureReply& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::FailureReply&& source,
                        Generated::FailureReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
