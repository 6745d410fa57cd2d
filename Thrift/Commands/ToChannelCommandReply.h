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

/// Applies the wire record `ChannelCommandReply` to a domain `ChannelCommandReply`.
///
/// An identifier replaces the whole destination with a new reply; without one the results are added to those in the
/// destination. A result replaces an existing result of the same channel. An empty list counts as one default result.
///
/// Failure: "ChannelCommandReply is empty" when the flag of `guid` is clear. If the flag of `channelResults` is clear
/// too, the destination is unchanged; otherwise the results have been stored anyway.
///
/// Lost: results after the twelfth channel.
class ThriftToChannelCommandReplyConverter
    : public Converter<Generated::ChannelCommandReply, HighLevelOperations::Commands::ChannelCommandReply>
{
public:
    ConversionResult To(Generated::ChannelCommandReply const& source,
                        HighLevelOperations::Commands::ChannelCommandReply& destination) const noexcept override;

    ConversionResult To(Generated::ChannelCommandReply&& source,
                        HighLevelOperations::Commands::ChannelCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
