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

/// Replaces a domain `GetChannelsCommandReply` with the wire record `GetChannelsCommandReply`. It can't fail. Flags and
/// the results of the states' conversions are ignored. If two keys become one channel, the later one replaces the
/// earlier.
///
/// Ends the process: anything that ends it in ThriftToPlayerStateConverter and ThriftToRecorderStateConverter.
class GetChannelsCommandReplyFromThriftConverter
    : public Converter<Generated::GetChannelsCommandReply, HighLevelOperations::Commands::GetChannelsCommandReply>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::GetChannelsCommandReply const& source,
                               HighLevelOperations::Commands::GetChannelsCommandReply& destination) const;

    ConversionResult To(Generated::GetChannelsCommandReply const& source,
                        HighLevelOperations::Commands::GetChannelsCommandReply& destination) const noexcept override;

    ConversionResult To(Generated::GetChannelsCommandReply&& source,
                        HighLevelOperations::Commands::GetChannelsCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
