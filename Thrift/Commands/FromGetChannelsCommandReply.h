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

/// Writes a domain `GetChannelsCommandReply` into the wire record `GetChannelsCommandReply`. It can't fail. The results
/// of the states' conversions are ignored.
///
/// States are added to those in the destination and replace a state of the same channel. The flags of both maps are
/// unchanged.
class GetChannelsCommandReplyToThriftConverter
    : public Converter<HighLevelOperations::Commands::GetChannelsCommandReply, Generated::GetChannelsCommandReply>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GetChannelsCommandReply const& source,
                        Generated::GetChannelsCommandReply& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GetChannelsCommandReply&& source,
                        Generated::GetChannelsCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
