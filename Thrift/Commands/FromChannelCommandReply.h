#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct ChannelCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class ChannelCommandReply;
} // namespace Generated

/// Writes a domain `ChannelCommandReply` into the wire record `ChannelCommandReply`. It can't fail.
///
/// Results are appended to those in the destination. A reply without results writes the one in its first slot; with a
/// `resultCount` above 12, the twelve slots are written.
class ChannelCommandReplyToThriftConverter
    : public Converter<HighLevelOperations::Commands::ChannelCommandReply, Generated::ChannelCommandReply>
{
public:
    ConversionResult To(HighLevelOperations::Commands::ChannelCommandReply const& source,
                        Generated::ChannelCommandReply& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::ChannelCommandReply&& source,
                        Generated::ChannelCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
