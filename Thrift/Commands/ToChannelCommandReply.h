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
/// An identifier replaces the whole destination by a new reply; without one the results are put among those that it
/// holds. A result of a channel that is there takes its place. An empty list counts as one default result.
///
/// Failure: "ChannelCommandReply is empty" when the flag of `guid` is clear. With that of `channelResults` clear too
/// the destination is unchanged, else the results have been put there all the same.
///
/// Lost on the way: results beyond the twelfth channel.
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
