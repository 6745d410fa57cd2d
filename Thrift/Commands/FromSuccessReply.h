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

/// Writes a domain `SuccessReply` into the wire record `SuccessReply`. It can't fail.
class SuccessReplyToThriftConverter
    : public Converter<HighLevelOperations::Commands::SuccessReply, Generated::SuccessReply>
{
public:
    ConversionResult To(HighLevelOperations::Commands::SuccessReply const& source,
                        Generated::SuccessReply& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::SuccessReply&& source,
                        Generated::SuccessReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
