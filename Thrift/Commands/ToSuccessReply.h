#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct SuccessReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class SuccessReply;
} // namespace Generated

/// Reads a domain `SuccessReply` from the wire record `SuccessReply`.
///
/// Failure: "SuccessReply is empty" when its flag is clear; the destination is then unchanged.
class ThriftToSuccessReplyConverter
    : public Converter<Generated::SuccessReply, HighLevelOperations::Commands::SuccessReply>
{
public:
    ConversionResult To(Generated::SuccessReply const& source,
                        HighLevelOperations::Commands::SuccessReply& destination) const noexcept override;

    ConversionResult To(Generated::SuccessReply&& source,
                        HighLevelOperations::Commands::SuccessReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
