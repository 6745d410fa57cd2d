#pragma once

#include "Thrift/Converter.h"

namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands
{
struct GetPlaylistsCommandReply;
} // namespace Talvo::Corvane::Zelmar::HighLevelOperations::Commands

namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
{

namespace Generated
{
class GetPlaylistsCommandReply;
} // namespace Generated

/// Replaces a domain `GetPlaylistsCommandReply` with the wire record `GetPlaylistsCommandReply`. A revision that was
/// not sent is -1.
///
/// Failures:
/// - any failure of ThriftToPlaylistConverter, from an item; the destination is then unchanged.
/// - "GetPlaylistsCommandReply is empty": no flag is set; the destination is then an empty reply.
///
/// Ends the process: anything that ends it in ThriftToPlaylistConverter.
class ThriftToGetPlaylistsCommandReplyConverter
    : public Converter<Generated::GetPlaylistsCommandReply, HighLevelOperations::Commands::GetPlaylistsCommandReply>
{
public:
    /// Like To(), but throws BadValue where To() ends the process.
    ConversionResult ToOrThrow(Generated::GetPlaylistsCommandReply const& source,
                               HighLevelOperations::Commands::GetPlaylistsCommandReply& destination) const;

    ConversionResult To(Generated::GetPlaylistsCommandReply const& source,
                        HighLevelOperations::Commands::GetPlaylistsCommandReply& destination) const noexcept override;

    ConversionResult To(Generated::GetPlaylistsCommandReply&& source,
                        HighLevelOperations::Commands::GetPlaylistsCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
