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

/// Replaces a domain `GetServersCommandReply` with the wire record `GetServersCommandReply`.
///
/// Failures:
/// - any failure of ThriftToServerInfoConverter, from an item; the destination is then unchanged.
/// - "GetServersCommandReply is empty": no flag is set; the destination is then an empty reply.
class ThriftToGetServersCommandReplyConverter
    : public Converter<Generated::GetServersCommandReply, HighLevelOperations::Commands::GetServersCommandReply>
{
public:
    ConversionResult To(Generated::GetServersCommandReply const& source,
                        HighLevelOperations::Commands::GetServersCommandReply& destination) const noexcept override;

    ConversionResult To(Generated::GetServersCommandReply&& source,
                        HighLevelOperations::Commands::GetServersCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
