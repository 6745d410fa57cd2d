#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct GetChannelsCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetChannelsCommandReply;
} // namespace Generated

/// Replaces a domain `GetChannelsCommandReply` by the wire record `GetChannelsCommandReply`. It can't fail: no flag is
/// read, and what the conversion of a state reports is not looked at. Of two keys that become one channel the later
/// replaces the earlier.
///
/// Ends the process: what ends it in ThriftToPlayerStateConverter and ThriftToRecorderStateConverter.
class GetChannelsCommandReplyFromThriftConverter
    : public Converter<Generated::GetChannelsCommandReply, HighLevelOperations::Commands::GetChannelsCommandReply>
{
public:
    /// As To(), but throws BadValue for what ends the process there.
    ConversionResult ToOrThrow(Generated::GetChannelsCommandReply const& source,
                               HighLevelOperations::Commands::GetChannelsCommandReply& destination) const;

    ConversionResult To(Generated::GetChannelsCommandReply const& source,
                        HighLevelOperations::Commands::GetChannelsCommandReply& destination) const noexcept override;

    ConversionResult To(Generated::GetChannelsCommandReply&& source,
                        HighLevelOperations::Commands::GetChannelsCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
