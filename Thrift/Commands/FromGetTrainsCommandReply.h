#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct GetTrainsCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetTrainsCommandReply;
} // namespace Generated

/// Writes a domain `GetTrainsCommandReply` into the wire record `GetTrainsCommandReply`. It can't fail, and what the
/// conversion of an item reports is not looked at.
///
/// Items are appended to those that the destination holds; the list's flag is set only if there is any.
class GetTrainsCommandReplyToThriftConverter
    : public Converter<HighLevelOperations::Commands::GetTrainsCommandReply, Generated::GetTrainsCommandReply>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GetTrainsCommandReply const& source,
                        Generated::GetTrainsCommandReply& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GetTrainsCommandReply&& source,
                        Generated::GetTrainsCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
