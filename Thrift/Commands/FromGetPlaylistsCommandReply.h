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

/// Writes a domain `GetPlaylistsCommandReply` into the wire record `GetPlaylistsCommandReply`.
///
/// Items are appended to those in the destination; the list's flag is set only if the reply has items.
///
/// Failures: any failure of PlaylistToThriftConverter; the items before it stay in the destination and the list's flag
/// is unchanged. PlaylistToThriftConverter has no failures today.
class GetPlaylistsCommandReplyToThriftConverter
    : public Converter<HighLevelOperations::Commands::GetPlaylistsCommandReply, Generated::GetPlaylistsCommandReply>
{
public:
    ConversionResult To(HighLevelOperations::Commands::GetPlaylistsCommandReply const& source,
                        Generated::GetPlaylistsCommandReply& destination) const noexcept override;

    ConversionResult To(HighLevelOperations::Commands::GetPlaylistsCommandReply&& source,
                        Generated::GetPlaylistsCommandReply& destination) const noexcept override;
};

} // namespace Talvo::Corvane::Zelmar::Serialization::Thrift::Commands
