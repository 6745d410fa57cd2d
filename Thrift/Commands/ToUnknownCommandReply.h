#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct UnknownCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class UnknownCommandReply;
} // namespace Generated

/// Reads a domain `UnknownCommandReply` from the wire record `UnknownCommandReply`. It can't fail. The destination is
/// replaced regardless of the flag, and its identifier becomes Guid::Empty().
class ThriftToUnknownCommandReplyConverter
    : public Converter<Generated::UnknownCommandReply, HighLevelOperations::Commands::UnknownCommandReply>
{
public:
    ConversionResult To(Generated::UnknownCommandReply const& source,
                        HighLevelOperations::Commands::UnknownCommandReply& destination) const noexcept override;

    ConversionResult To(Generated::UnknownCommandReply&& source,
                        HighLevelOperations::Commands::UnknownCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
