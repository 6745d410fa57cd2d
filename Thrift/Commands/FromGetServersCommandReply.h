#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct GetServersCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetServersCommandReply;
} // namespace Generated

/// Writes a domain `GetServersCommandReply` into the wire record `GetServersCommandReply`.
///
/// Items are appended to those in the destination; the list's flag is set only if the reply has items.
///
/// Failures: any failure of ServerInfoToThriftConverter; the items before it stay in the destination and the list's
/// flag is unchanged. ServerInfoToThriftConverter has no failures today.
class GetServersCommandReplyToThriftConverter
    : public Converter<HighLevelOperations::Commands::GetServersCommandReply, Generated::GetServersCommandReply>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GetServersCommandReply const& source,
                        Generated::GetServersCommandReply& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GetServersCommandReply&& source,
                        Generated::GetServersCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
